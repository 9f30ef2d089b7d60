#include "reports/frmSave.h"

#include <QPushButton>

#include "data/Material.h"
#include "data/status_numbers.h"
#include "platform/forms/help_context.h"
#include "platform/runtime/runtime_error.h"
#include "reports/report_commands.h"
#include "reports/ReportSource.h"
#include "shell/mdiVelmar.h"

frmSave::frmSave()
    : Form("frmSave")
    , FormatChoice(this) {
    setCaption("Save Graph / Design Values...");
    HelpContext::set(*this, "Reports.htm");
    setIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    setSizable(false);
    setMinMaxButtons(false, false);
    setScaleSize(3480, 2610);
    moveTo(framSave, 240, 180);
    cmdSave.add(0, new QPushButton("Save...", this), "Save");
    cmdSave.add(1, new QPushButton("Cancel", this), "Cancel");
    place(cmdSave(0), 240, 2010, 1410, 420);
    place(cmdSave(1), 1830, 2010, 1410, 420);
    setDefaultButton(cmdSave(0));
    setCancelButton(cmdSave(1));
    connect(cmdSave(0), &QPushButton::clicked, this, &frmSave::save);
    connect(cmdSave(1), &QPushButton::clicked, this, &frmSave::cancel);
}

void frmSave::Form_Load() {
    mdiVelmar::instance().ShowStatus(StatusNumber::onlyShown(StatusNumber::ChooseFormat));
}

void frmSave::Form_Unload(bool &) {
    mdiVelmar::instance().ShowStatus(StatusNumber::Restore);
}

void frmSave::save() {
    ReportCommands::saveReport(chosen());
    Unload();
}

void frmSave::cancel() {
    const auto &current = mdiVelmar::instance().mCurrent;
    if (!current || !current->MyForm()) throw RuntimeError(91);
    ReportSource::of(*current).setReportKind(ReportKind::Tables);
    Unload();
}
