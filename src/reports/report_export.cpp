#include "reports/report_export.h"

#include "platform/forms/busy_pointer.h"
#include "platform/forms/common_dialog.h"
#include "platform/forms/msg_box.h"
#include "platform/printing/pdf_output.h"
#include "platform/printing/rtf_output.h"
#include "platform/printing/text_output.h"

namespace ReportExport {

namespace {

struct OutputFormat {
    const char *filter;
    const char *extension;
    void (*save)(const Printing::Document &document, const QString &path);
};

const OutputFormat Formats[] = {{"Portable Document Format (*.pdf)|*.pdf", ".pdf", Printing::savePdf},
                                {"Rich Text Format (*.rtf)|*.rtf", ".rtf", Printing::saveRtf},
                                {"Text Format (*.txt)|*.txt", ".txt", Printing::saveText}};

} // namespace

void saveAsking(const Printing::Document &document, int format, const QString &name, CommonDialog &dialog) {
    const OutputFormat &chosen = Formats[format];
    dialog.DialogTitle = "Save Report...";
    dialog.FileName = "c:\\" + name + chosen.extension;
    dialog.InitDir = "c:\\";
    dialog.Filter = chosen.filter;
    dialog.DefaultExt = chosen.extension;
    dialog.CancelError = true;
    dialog.Topic = "Reports.htm";
    dialog.ShowSave();
    MsgBox(dialog.FileName);
    if (dialog.FileName.isEmpty()) return;
    const BusyPointer busy;
    chosen.save(document, dialog.FileName);
}

} // namespace ReportExport
