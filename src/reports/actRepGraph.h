// The sub-report of a graph: the chart of the current material's window, as it is when the report starts.
#pragma once

#include <memory>

#include "platform/printing/report.h"

class Material;

/// Raises 91 without a material window.
class actRepGraph : public Printing::Report {
    Q_OBJECT
public:
    /// Without a material it takes the current one when it starts.
    explicit actRepGraph(std::shared_ptr<Material> material = nullptr);

protected:
    void ReportStart() override;

private:
    std::shared_ptr<Material> m_material;
};
