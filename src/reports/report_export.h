// A finished report into the file that the user names.
#pragma once

#include <QString>

#include "platform/printing/document.h"

class CommonDialog;

namespace ReportExport {

/// Asks for a file, `name` with the format's extension offered, says which it is, and writes it. `format` is
/// 0 PDF, 1 RTF, 2 text. Any error, Cancel among them, ends it without a word.
void saveAsking(const Printing::Document &document, int format, const QString &name, CommonDialog &dialog);

} // namespace ReportExport
