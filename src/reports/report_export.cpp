#include "reports/report_export.h"

#include "platform/forms/common_dialog.h"
#include "platform/forms/msg_box.h"
#include "platform/printing/pdf_output.h"
#include "platform/printing/rtf_output.h"
#include "platform/printing/text_output.h"
#include "platform/runtime/runtime_error.h"

namespace ReportExport {

namespace {

struct Format {
    const char *filter;
    const char *extension;
    void (*save)(const Printing::Document &document, const QString &path);
};

const Format Formats[] = {{"Portable Document Format (*.pdf)|*.pdf", ".pdf", Printing::savePdf},
                          {"Rich Text Format (*.rtf)|*.rtf", ".rtf", Printing::saveRtf},
                          {"Text Format (*.txt)|*.txt", ".txt", Printing::saveText}};

} // namespace

void saveAsking(const Printing::Document &document, int format, const QString &name, CommonDialog &dialog) {
    const Format &chosen = Formats[format];
    try {
        dialog.FileName = "c:\\" + name + chosen.extension;
        dialog.InitDir = "c:\\";
        dialog.Filter = chosen.filter;
        dialog.DefaultExt = chosen.extension;
        dialog.CancelError = true;
        dialog.ShowSave();
        MsgBox(dialog.FileName);
        if (!dialog.FileName.isEmpty()) chosen.save(document, dialog.FileName);
    } catch (const RuntimeError &) {
        return; // nobody is told, and no half file is left
    }
}

} // namespace ReportExport
