// The sections and controls of the main report as they stand before a run.
#pragma once

class actRepMain;

namespace MainReportTemplate {

void build(actRepMain &report);

} // namespace MainReportTemplate
