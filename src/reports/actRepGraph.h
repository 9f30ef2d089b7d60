// The sub-report of a graph: the chart of the current material's window, as it is when the report starts.
#pragma once

#include "platform/printing/report.h"

/// Raises 91 without a material window.
class actRepGraph : public Printing::Report {
    Q_OBJECT
public:
    actRepGraph();

protected:
    void ReportStart() override;
};
