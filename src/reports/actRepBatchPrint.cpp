#include "reports/actRepBatchPrint.h"

#include <QDateTime>
#include <QScopeGuard>

#include "platform/forms/status_bar.h"
#include "platform/runtime/app.h"
#include "platform/runtime/regional_settings.h"
#include "reports/actRepMain.h"
#include "reports/report_layout.h"
#include "reports/report_window.h"
#include "shell/mdiVelmar.h"

using namespace Printing;

namespace {

/// What the place of a report takes on the drawing board; the report itself grows.
constexpr int ReportHeight = 1000;

std::unique_ptr<actRepBatchPrint> &batchInstance() {
    static std::unique_ptr<actRepBatchPrint> report;
    return report;
}

} // namespace

actRepBatchPrint &actRepBatchPrint::instance() {
    if (!batchInstance()) batchInstance() = std::make_unique<actRepBatchPrint>();
    return *batchInstance();
}

actRepBatchPrint::actRepBatchPrint() {
    ReportLayout::setPage(PageSetup);
    AddSection(SectionType::PageHeader, "PageHeader");
    AddSection(SectionType::Detail, "Detail");
    Section &footer = AddSection(SectionType::PageFooter, "PageFooter");
    ReportLayout::addPageFooter(footer);
    ReportLayout::asFootnote(footer.Controls.Add<Field>("txtDateTime"));
}

void actRepBatchPrint::ShowModal(QWidget *owner) {
    // the main reports find their queue here until the last one has started
    const auto unload = qScopeGuard([] { batchInstance().reset(); });
    mdiVelmar &main = mdiVelmar::instance();
    m_progress.emplace(main.stbStatus->PanelPlace(1), main.colMaterials.Count());
    Run();
    m_progress.reset();
    ReportWindow::showModal(*this, "actRepBatchPrint", owner);
}

void actRepBatchPrint::ReportStarted() {
    colBatchMaterials.Remove(1);
    if (m_progress) m_progress->step();
}

void actRepBatchPrint::ReportStart() {
    const Materials &materials = mdiVelmar::instance().colMaterials;
    ControlList &places = Sections("Detail").Controls;
    int count = 0;
    int top = 0;
    for (const auto &material : materials) {
        const QString number = QString::number(++count);
        colBatchMaterials.Add(material);
        auto &place = places.Add<SubReport>("SubReport" + number);
        place.Top = top;
        place.Width = PrintWidth();
        place.Height = ReportHeight;
        place.Object = std::make_shared<actRepMain>();
        top = ReportLayout::bottomEdge(place);
        if (count < materials.Count()) places.Add<PageBreak>("PageBreak" + number).Top = top;
    }
    ControlList &footer = Sections("PageFooter").Controls;
    footer.Item<Field>("txtDateTime").Text =
        RegionalSettings::current().dateText(QDateTime::currentDateTime());
    Caption = DocumentName = App::current().title + "_MATERIALS_BATCH_PRINT";
    Author = App::current().title;
    footer.Item<Label>("lblDocName").Text = DocumentName;
}
