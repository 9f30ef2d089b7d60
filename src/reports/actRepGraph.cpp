#include "reports/actRepGraph.h"

#include "data/Material.h"
#include "platform/forms/ms_chart.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"
#include "reports/report_layout.h"
#include "reports/ReportSource.h"
#include "shell/mdiVelmar.h"

using namespace Printing;
using namespace ReportLayout;

namespace {
constexpr int ChartHeight = 6900;
}

actRepGraph::actRepGraph(std::shared_ptr<Material> material)
    : m_material(std::move(material)) {
    AddSection(SectionType::PageHeader, "PageHeader");
    Section &header = AddSection(SectionType::GroupHeader, "GroupHeader1");
    auto &chart = header.Controls.Add<Chart>("MSChart1");
    chart.Width = PageWidth;
    chart.Height = ChartHeight;
    AddSection(SectionType::Detail, "Detail");
    AddSection(SectionType::GroupFooter, "GroupFooter1");
    AddSection(SectionType::PageFooter, "PageFooter");
}

/// One copy at the start: a later change on the window does not reach a report under way.
void actRepGraph::ReportStart() {
    if (!m_material) m_material = mdiVelmar::instance().mCurrent;
    MSChart copy;
    copy.copyFrom(ReportSource::of(*m_material).chart());
    const ChartPicture picture = copy.picture({toPixels(PageWidth), toPixels(ChartHeight)});
    auto &chart = Sections("GroupHeader1").Controls.Item<Chart>("MSChart1");
    chart.AlternativeText = copy.TitleText();
    chart.Paint = [picture](QPainter &painter, const QSizeF &size) {
        picture.paint(&painter, QRectF(QPointF(), size));
    };
}
