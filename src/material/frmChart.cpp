#include "material/frmChart.h"

#include <QFrame>
#include <QToolButton>

#include "data/Material.h"
#include "data/status_numbers.h"
#include "platform/forms/colours.h"
#include "platform/forms/help_context.h"
#include "platform/forms/ms_chart.h"
#include "platform/forms/screen.h"
#include "platform/runtime/runtime_error.h"
#include "platform/runtime/twips.h"
#include "reports/report_commands.h"
#include "reports/report_export.h"
#include "reports/ReportSource.h"
#include "shell/mdiVelmar.h"

namespace {

// Twips.
constexpr int DesignedWidth = 13200;
constexpr int DesignedHeight = 9000;
constexpr int Margin = 120;
constexpr int ButtonSize = 540;

constexpr int StatusOfGraph = StatusNumber::onlyShown(StatusNumber::EnlargedChart);

} // namespace

frmChart::frmChart()
    : Form("frmChart")
    , framChart(named(new QFrame(this), "framChart", "Graph"))
    , MSChart1(named(new MSChart(framChart), "MSChart1")) {
    setIcon(QIcon(":/velmar/app/velmar-ped.svg"));
    HelpContext::set(*this, "Graphs.htm");
    setWidth(DesignedWidth);
    setHeight(DesignedHeight);
    setMinMaxButtons(false, true);
    framChart->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setBackColor(framChart, vbInfoBackground);
    addButton(0, "graph/save.svg", "Save Graph As Bitmap File (*.bmp)...");
    addButton(1, "graph/print.svg", "Print Graph");
    addButton(2, "graph/return.svg", "Return To Material");
    setCancelButton(cmdGraph(2));
    connect(cmdGraph(0), &QToolButton::clicked, this, &frmChart::save);
    connect(cmdGraph(1), &QToolButton::clicked, this, &frmChart::print);
    connect(cmdGraph(2), &QToolButton::clicked, this, [this] { Unload(); });
}

void frmChart::addButton(int index, const QString &picture, const QString &toolTip) {
    auto *button = cmdGraph.add(index, new QToolButton(framChart), toolTip);
    button->setIcon(QIcon(":/velmar/" + picture));
    button->setIconSize({22, 22});
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::StrongFocus);
}

void frmChart::Form_Load() {
    mdiVelmar &main = mdiVelmar::instance();
    main.ShowStatus(StatusOfGraph);
    if (!main.bToolTips) {
        for (const auto &[index, button] : cmdGraph)
            button->setToolTip({});
    }
    if (!main.menu.mnuSettingsElem(SettingsEntry::Colour).Checked()) setBackColor(framChart, vbWhite);

    if (!main.mCurrent || main.mCurrent->MyForm() == nullptr) throw RuntimeError(91);
    const Form &material = *main.mCurrent->MyForm();
    const ReportSource &source = ReportSource::of(*main.mCurrent);
    MSChart1->copyFrom(source.chart());
    MSChart1->setUniformAxis(source.chart().UniformAxis());
    setCaption(material.Caption());
    strCurrentTable = source.currentTable();
    const QSize beside(toPixels(5 * Margin + ButtonSize), toPixels(4 * Margin));
    setMinimumSize((MSChart1->smallestSize() + beside).boundedTo(Screen::freeArea(*this).size()));

    cmdGraph(2)->setFocus(); // the way back is the first in the tab order
}

/// Into a file the graph goes as a PDF, whatever the button's tip says.
void frmChart::save() {
    takeGraph();
    ReportCommands::saveReport(ReportExport::Pdf, true);
}

void frmChart::print() {
    takeGraph();
    ReportCommands::previewReport(StatusOfGraph);
}

/// The material's next report is its graph.
void frmChart::takeGraph() {
    ReportSource::of(*mdiVelmar::instance().mCurrent).setReportKind(ReportKind::Graph);
}

void frmChart::Form_Activate() {
    mdiVelmar::instance().ShowStatus(StatusOfGraph);
}

void frmChart::Form_Resize() {
    const int width = ScaleWidth() - 2 * Margin;
    const int height = ScaleHeight() - 2 * Margin;
    const int buttonLeft = width - ButtonSize - Margin;
    place(framChart, Margin, Margin, width, height);
    place(MSChart1, Margin, Margin, buttonLeft - 2 * Margin, height - 2 * Margin);
    for (const auto &[index, button] : cmdGraph)
        place(button, buttonLeft, Margin + index * (ButtonSize + Margin / 2), ButtonSize, ButtonSize);
}

void frmChart::Form_Unload(bool &) {
    mdiVelmar::instance().ShowStatus(StatusNumber::Restore);
}
