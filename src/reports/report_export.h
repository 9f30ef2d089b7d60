// A finished report into the file that the user names.
#pragma once

#include <QString>

#include "platform/printing/document.h"

class CommonDialog;

namespace ReportExport {

/// As `format` of saveAsking.
enum Format { Pdf = 0, Rtf = 1, Text = 2 };

/// Asks for a file, `name` with the format's extension offered, says which it is, and writes it. Raises 32755
/// for Cancel, and what writeWholeFile() raises.
void saveAsking(const Printing::Document &document, int format, const QString &name, CommonDialog &dialog);

} // namespace ReportExport
