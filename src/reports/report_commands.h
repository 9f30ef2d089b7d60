// The two ways in which a window runs the main report for the current material.
#pragma once

#include "data/status_numbers.h"

namespace ReportCommands {

/// `format` as ReportExport::Format. `fromChart`: the status line is to end on the enlarged graph's message.
void saveReport(int format, bool fromChart = false);

/// In a modal window above the main window. The status line ends on message `status`.
void previewReport(int status = StatusNumber::Restore);

} // namespace ReportCommands
