#include "reports/report_commands.h"

#include "reports/actRepMain.h"
#include "shell/mdiVelmar.h"

namespace ReportCommands {

void saveReport(int format, bool fromChart) {
    actRepMain &report = actRepMain::instance();
    report.bSaveToFile = true;
    report.bFromChart = fromChart;
    report.iSaveFormat = static_cast<qint16>(format);
    report.RunToFile();
}

void previewReport(int status) {
    mdiVelmar &main = mdiVelmar::instance();
    actRepMain::instance().ShowModal(&main);
    main.ShowStatus(status);
}

} // namespace ReportCommands
