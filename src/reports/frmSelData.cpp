#include "reports/frmSelData.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include "data/Material.h"
#include "data/status_numbers.h"
#include "data/table_vocabulary.h"
#include "platform/forms/call_by_name.h"
#include "platform/forms/help_context.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_commands.h"
#include "shell/mdiVelmar.h"

namespace {

const QString SaveCaption = QStringLiteral("Save...");

constexpr int FirstBoxTop = 570;
constexpr int BoxDistance = 330;
constexpr int RightPart = 5340;

} // namespace

frmSelData::frmSelData()
    : Form("frmSelData")
    , FormatChoice(this)
    , lblSelData(named(new QLabel("Tables of the report:", this), "lblSelData"))
    , cmdSavePrint(named(new QPushButton(this), "cmdSavePrint"))
    , cmdCancel(named(new QPushButton("Cancel", this), "cmdCancel", "Cancel")) {
    setCaption("Select Data...");
    HelpContext::set(*this, "Reports.htm");
    setSizable(false);
    setMinMaxButtons(false, false);
    setScaleSize(RightPart + 3240, 5400);
    place(lblSelData, 240, 180, 4860, 300);
    for (int i = 0; i < TableVocabulary::TableCount; ++i) {
        const QString caption = QString::fromUtf16(TableVocabulary::tableAt(i).reportChoice);
        chkData.add(i, new QCheckBox(caption, this), caption)->setChecked(true);
    }
    moveTo(framSave, RightPart, 180);
    place(cmdSavePrint, RightPart, 4230, 3000, 420);
    place(cmdCancel, RightPart, 4770, 3000, 420);
    setDefaultButton(cmdSavePrint);
    setCancelButton(cmdCancel);
    // the references are in every report
    connect(chkData(0), &QCheckBox::clicked, this, [this] { chkData(0)->setChecked(true); });
    connect(cmdSavePrint, &QPushButton::clicked, this, &frmSelData::savePrint);
    connect(cmdCancel, &QPushButton::clicked, this, [this] {
        mdiVelmar::instance().ShowStatus(StatusNumber::Restore);
        Unload();
    });
}

void frmSelData::Form_Load() {
    setLeft(5000);
    setTop(3000);
    m_material = mdiVelmar::instance().mCurrent;
    if (!m_material || !m_material->MyForm()) throw RuntimeError(91);
    checkTables();
    placeBoxes();
    setTabOrders();
}

/// By its close box; the other ways out hand the status line back themselves.
void frmSelData::Form_QueryUnload(bool &, UnloadMode mode) {
    if (mode == vbFormControlMenu) mdiVelmar::instance().ShowStatus(StatusNumber::Restore);
}

/// The window goes through its tables, which the user need not watch.
void frmSelData::checkTables() {
    mdiVelmar &main = mdiVelmar::instance();
    Form &window = *m_material->MyForm();
    main.setMousePointer(vbHourglass);
    const QPointer<QWidget> focused = window.focusWidget();
    window.Hide();
    CallByName(static_cast<FormBase &>(window), "CheckTablesForRecords");
    window.Show();
    if (focused) focused->setFocus(); // what is hidden passes the keyboard on
    for (const auto &[index, box] : chkData) {
        if (index == 0 || m_material->TableHasData(main.GetShortTableName(index))) continue;
        box->setChecked(false);
        box->hide();
    }
    main.setMousePointer(vbDefault);
}

void frmSelData::placeBoxes() {
    int top = FirstBoxTop;
    for (const auto &[index, box] : chkData) {
        if (box->isHidden()) continue;
        place(box, 240, top, 4980, 300);
        top += BoxDistance;
    }
}

void frmSelData::setTabOrders() {
    QWidget *last = optFormat(0);
    const auto follow = [&last](QWidget *next) {
        setTabOrder(last, next);
        last = next;
    };
    follow(optFormat(1));
    follow(optFormat(2));
    follow(cmdSavePrint);
    for (const auto &[index, box] : chkData)
        follow(box);
    follow(cmdCancel);
}

void frmSelData::savePrint() {
    for (const auto &[index, box] : chkData)
        m_material->setPrintTable(index, box->isChecked());
    if (cmdSavePrint->text() == SaveCaption)
        ReportCommands::saveReport(chosen());
    else
        ReportCommands::previewReport();
    Unload();
}
