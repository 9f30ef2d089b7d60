#include "search/PickWindow.h"

#include "data/modDBase.h"
#include "data/queries.h"
#include "platform/dao/recordset.h"
#include "platform/forms/help_context.h"
#include "shell/mdiVelmar.h"

namespace {

// All in twips.
constexpr int Margin = 120;
constexpr int FrameHeight = 1125;
constexpr int ChoiceHeight = 600;
constexpr int MoveWidth = 2190;

const char *const Directions[] = {"First", "Previous", "Next", "Last"};

} // namespace

PickWindow::PickWindow(const QString &name, int width, int height)
    : Form(name)
    , dtaSelect(new DataControl(this))
    , txtSearch(named(new QLineEdit, "txtSearch", "Find criteria"))
    , cmdSelect(named(new QPushButton("&Select"), "cmdSelect", "Select"))
    , cmdCancel(named(new QPushButton("&Cancel"), "cmdCancel", "Cancel")) {
    setScaleSize(width, height);
    setMinMaxButtons(false, true);
    HelpContext::set(*this, "Searching.htm");
    dtaSelect->setObjectName("dtaSelect");
    dtaSelect->setRecordSource(Queries::sqlInitialSelection());
    makeFrames();
    setDefaultButton(cmdSelect);
    setCancelButton(cmdCancel);
    connect(txtSearch, &QLineEdit::textChanged, this, &PickWindow::findTyped);
    connect(cmdSelect, &QPushButton::clicked, this, [this] { choose(chosenText()); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { choose({}); });
}

void PickWindow::makeFrames() {
    const char *const titles[] = {"Move...", "Find...", ""};
    const char *const accessibleNames[] = {"Move", "Find", "Choose"};
    for (int i = 0; i < 3; ++i)
        framSelect.add(i, new QGroupBox(titles[i], this), accessibleNames[i]);
    const int width = ScaleWidth();
    const int choiceTop = ScaleHeight() - Margin - ChoiceHeight;
    const int top = choiceTop - Margin / 2 - FrameHeight;
    const int findLeft = Margin + MoveWidth + Margin;
    place(framSelect(0), Margin, top, MoveWidth, FrameHeight);
    place(framSelect(1), findLeft, top, width - Margin - findLeft, FrameHeight);
    place(framSelect(2), Margin, choiceTop, width - 2 * Margin, ChoiceHeight);

    const char *const pictures[] = {"first", "previous", "next", "last"};
    for (int i = 0; i < 4; ++i) {
        const QString tip = QString("Move To %1 Record").arg(Directions[i]);
        QPushButton *button = cmdSelNav.add(i, new QPushButton(framSelect(0)), tip);
        button->setIcon(QIcon(QString(":/velmar/navigation/%1.svg").arg(pictures[i])));
        button->setToolTip(tip);
        place(button, Margin + i * 495, 480, 465, 390);
        connect(button, &QPushButton::clicked, this, [this, i] {
            modDBase::RecordNavigate(*dtaSelect->recordset(), i);
            moved();
        });
    }
    makeFindFrame(framSelect(1));
    makeChoiceFrame(framSelect(2), width - 2 * Margin);
}

void PickWindow::makeFindFrame(QGroupBox *frame) {
    txtSearch->setParent(frame);
    txtSearch->setToolTip("Type in Find criteria here");
    const int inside = placeOf(frame).width() - 2 * Margin;
    const int step = (inside + Margin) / 4;
    place(txtSearch, Margin, 285, inside, 345);
    const char *const captions[] = {"&First", "&Prev", "&Next", "&Last"};
    for (int i = 0; i < 4; ++i) {
        QPushButton *button =
            cmdFind.add(i, new QPushButton(captions[i], frame), QString("Find ") + Directions[i]);
        place(button, Margin + i * step, 690, step - Margin, 360);
        connect(button, &QPushButton::clicked, this, [this, i] { findByButton(i); });
    }
    setFindTips({});
}

void PickWindow::makeChoiceFrame(QGroupBox *frame, int width) {
    cmdSelect->setParent(frame);
    cmdCancel->setParent(frame);
    place(cmdSelect, width - 2 * 1320 - 210, 105, 1320, 390);
    place(cmdCancel, width - 1320 - 105, 105, 1320, 390);
}

void PickWindow::Form_Load() {
    dblWidth0 = Width();
    dblHeight0 = Height();
    m_listAtLoad = placeOf(list());
    for (const auto &[index, frame] : framSelect)
        m_framesAtLoad[index] = placeOf(frame).topLeft();
    setMinimumSize(size());
    list()->setFocus();
    if (mdiVelmar::instance().bToolTips) return;
    for (const auto &[index, button] : cmdSelNav)
        button->setToolTip({});
    for (const auto &[index, button] : cmdFind)
        button->setToolTip({});
    txtSearch->setToolTip({});
}

void PickWindow::Form_Resize() {
    const int wider = Width() - dblWidth0;
    const int higher = Height() - dblHeight0;
    for (const auto &[index, frame] : framSelect)
        moveTo(frame, m_framesAtLoad[index].x() + wider, m_framesAtLoad[index].y() + higher);
    resizeTo(list(), m_listAtLoad.width() + wider, m_listAtLoad.height() + higher);
}

/// The window's own close box is no choice either.
void PickWindow::Form_QueryUnload(bool &, UnloadMode mode) {
    if (mode == vbFormControlMenu) modDBase::SetSelectedValue(QString());
}

void PickWindow::choose(const QString &text) {
    modDBase::SetSelectedValue(text);
    Unload();
}

void PickWindow::find(int direction, const QString &criterion) {
    Recordset &rows = *dtaSelect->recordset();
    switch (direction) {
    case 0:
        rows.FindFirst(criterion);
        break;
    case 1:
        rows.FindPrevious(criterion);
        break;
    case 2:
        rows.FindNext(criterion);
        break;
    default:
        rows.FindLast(criterion);
        break;
    }
    moved();
}

void PickWindow::findTyped() {
    const QString text = txtSearch->text();
    find(0, searchedField() + " LIKE '*" + text + "*'");
    if (mdiVelmar::instance().bToolTips) setFindTips(" '" + text + '\'');
}

void PickWindow::findByButton(int direction) {
    find(direction, searchedField() + " like '*" + txtSearch->text() + "*'");
}

void PickWindow::setFindTips(const QString &suffix) {
    for (const auto &[index, button] : cmdFind)
        button->setToolTip(QString("Find ") + Directions[index] + suffix);
}
