#include "material/NotesPanel.h"

#include "data/loaded_table.h"
#include "data/material_texts.h"
#include "material/material_layout.h"
#include "material/MaterialControls.h"
#include "shell/mdiVelmar.h"

using namespace MaterialLayout;

namespace {

constexpr int Closed = 0;
constexpr int Open = 1;
constexpr int Attention = 2;

void setHeight(QWidget *widget, int twips) {
    resizeTo(widget, placeOf(widget).width(), twips);
}

} // namespace

NotesPanel::NotesPanel(MaterialControls &controls)
    : m_controls(controls) {}

void NotesPanel::StorePlace() {
    mNotesPlace = {placeOf(m_controls.txtNotes), placeOf(m_controls.framNotes)};
}

void NotesPanel::Reset() {
    SizeForNotes("hide");
    setButtonPicture(Closed);
    m_controls.TimerFlash->stop();
    moveTo(m_controls.lblNotes, NotesLabelLeft, placeOf(m_controls.lblNotes).top());
    m_controls.lblNotes->hide();
    m_controls.lblNotes->setText("Notes...");
    m_controls.framNotes->hide();
    setText({});
    place(m_controls.txtNotes, mNotesPlace.text);
    place(m_controls.framNotes, mNotesPlace.frame);
}

void NotesPanel::ShowAsPage() {
    const QRect page = placeOf(m_controls.lblFullForm);
    const QRect frame(page.left() + InfoMargin, page.top() + InfoMargin, page.width() - 2 * InfoMargin,
                      page.height() - 2 * InfoMargin);
    place(m_controls.framNotes, frame);
    setHeight(m_controls.txtNotes, frame.height() - InfoTextMargin);
    m_controls.txtNotes->setFocusPolicy(Qt::StrongFocus);
    moveTo(m_controls.lblNotes, InfoLabelLeft, placeOf(m_controls.lblNotes).top());
    showCaption("Additional Information...");
    m_controls.framNotes->show();
}

void NotesPanel::LoadNotes(const LoadedTable &table) {
    mHasNotes = table.hasNotes;
    m_controls.cmdShowNotes->setVisible(mHasNotes);
    m_controls.lblNotes->setVisible(mHasNotes);
    if (!mHasNotes) return;
    setText(table.notes);
    m_controls.TimerFlash->start();
}

void NotesPanel::AddOtherElements(const QString &text) {
    setText(textWithOtherElements(text, m_text));
    if (mHasNotes) {
        m_controls.lblNotes->setText("Other Elements & Notes...");
        return;
    }
    mHasNotes = true;
    m_controls.cmdShowNotes->show();
    showCaption("Other Elements...");
    m_controls.TimerFlash->start();
}

void NotesPanel::setText(const QString &text) {
    m_text = text;
    m_controls.txtNotes->setPlainText(text);
}

void NotesPanel::SizeForNotes(const QString &state) {
    const bool open = state == QLatin1String("show");
    const QRect frame = placeOf(m_controls.framNotes);
    place(m_controls.framNotes, frame.left(), open ? OpenNotesTop : ClosedNotesTop, frame.width(),
          open ? OpenNotesHeight : ClosedNotesHeight);
    const int height = open ? TableHeightWithNotes : TableHeight;
    for (QWidget *table : QList<QWidget *>{m_controls.framOptions, m_controls.tdbBoundTable,
                                           m_controls.tdbTable, m_controls.framNoData})
        setHeight(table, height);
    setHeight(m_controls.txtNoData, height - 2 * NoDataMargin);
    // The folded panel cuts the text off, so that the keyboard must not go there.
    m_controls.txtNotes->setFocusPolicy(open ? Qt::StrongFocus : Qt::NoFocus);
    if (mdiVelmar::instance().bToolTips)
        m_controls.cmdShowNotes->setToolTip(open ? "Hide Table Notes" : "Show Table Notes");
}

/// Meant so: the timer runs on, and a panel that was read and closed goes on flashing.
void NotesPanel::Toggle() {
    const bool open = m_picture != Open;
    setButtonPicture(open ? Open : Closed);
    SizeForNotes(open ? "show" : "hide");
}

void NotesPanel::Flash() {
    if (m_picture != Open) setButtonPicture(m_picture == Closed ? Attention : Closed);
}

void NotesPanel::setButtonPicture(int index) {
    m_picture = index;
    m_controls.cmdShowNotes->setIcon(QIcon(m_controls.imgUpDown(index)->Picture()));
}

void NotesPanel::showCaption(const QString &caption) {
    m_controls.lblNotes->setText(caption);
    m_controls.lblNotes->show();
}
