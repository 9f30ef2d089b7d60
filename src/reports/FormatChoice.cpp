#include "reports/FormatChoice.h"

#include "reports/report_export.h"
#include "shell/mdiVelmar.h"

FormatChoice::FormatChoice(QWidget *window)
    : framSave(named(new QGroupBox("File Format", window), "framSave", "File Format")) {
    struct Option {
        const char *caption;
        const char *tag;
    };
    const Option options[] = {
        {"Portable Document Format", "*.pdf"}, {"Rich Text Format", "*.rtf"}, {"Text Format", "*.txt"}};
    for (int i = 0; i < static_cast<int>(std::size(options)); ++i) {
        auto *option = optFormat.add(i, new QRadioButton(options[i].caption, framSave), options[i].caption);
        option->setProperty("Tag", QLatin1String(options[i].tag));
        if (mdiVelmar::instance().bToolTips) option->setToolTip(QLatin1String(options[i].tag));
        place(option, 180, 390 + i * 390, 2700, 300);
    }
    optFormat(ReportExport::Pdf)->setChecked(true);
    resizeTo(framSave, 3000, 1650);
}

int FormatChoice::chosen() const {
    if (optFormat(ReportExport::Pdf)->isChecked()) return ReportExport::Pdf;
    return optFormat(ReportExport::Rtf)->isChecked() ? ReportExport::Rtf : ReportExport::Text;
}
