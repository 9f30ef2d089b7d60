#include "workbench/frmCompare.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "exchange/value_tables.h"
#include "platform/forms/announcement.h"
#include "platform/forms/placement.h"
#include "reports/save_taken.h"
#include "shell/mdiVelmar.h"
#include "workbench/ComparisonChartPage.h"
#include "workbench/ComparisonPage.h"
#include "workbench/CompositionPage.h"
#include "workbench/number_box.h"
#include "workbench/SelectionPages.h"

namespace {

const QString CompareTopic = QStringLiteral("Compare_Grades.htm");
} // namespace

frmCompare::frmCompare()
    : WorkbenchWindow("frmCompare", "Compare Grades", CompareTopic)
    , txtTemperature(numberBox("txtTemperature", "Temperature in °C"))
    , txtThickness(numberBox("txtThickness", "Thickness in mm"))
    , lblTyped(named(new QLabel, "lblTyped"))
    , tabPages(named(new QTabWidget, "tabPages", "Pages"))
    , pagValues(new ComparisonPage(m_values, tabPages))
    , pagChart(new ComparisonChartPage(m_values, tabPages))
    , pagComposition(new CompositionPage(tabPages))
    , cmdCopy(named(new QPushButton("&Copy"), "cmdCopy", "Copy the table with its headings"))
    , cmdSave(named(new QPushButton("&Save..."), "cmdSave", "Save the table")) {
    fraPages = named(new SelectionPages("that you want to compare", layOut(), this), "fraPages");
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(fraPages);
    resize(900, 600);
    connectControls();
}

QWidget *frmCompare::layOut() {
    auto *content = new QWidget;
    auto *boxes = new QHBoxLayout;
    for (const auto &[caption, box] :
         {std::pair("&Temperature [°C]", txtTemperature), std::pair("T&hickness [mm]", txtThickness)}) {
        auto *label = new QLabel(caption);
        label->setBuddy(box);
        boxes->addWidget(label);
        boxes->addWidget(box);
    }
    boxes->addWidget(lblTyped, 1);
    lblTyped->setWordWrap(true);
    tabPages->addTab(pagValues, "&Values");
    tabPages->addTab(pagChart, "&Graph");
    tabPages->addTab(pagComposition, "C&omposition");
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdCopy);
    buttons->addWidget(cmdSave);
    auto *layout = new QVBoxLayout(content);
    layout->addLayout(boxes);
    layout->addWidget(tabPages, 1);
    layout->addLayout(buttons);
    return content;
}

void frmCompare::connectControls() {
    for (QLineEdit *box : {txtTemperature, txtThickness})
        connect(box, &QLineEdit::textChanged, this, &frmCompare::showPage);
    connect(pagValues, &ComparisonPage::filterChanged, this, &frmCompare::showPage);
    connect(pagChart, &ComparisonChartPage::propertyChanged, this, &frmCompare::showPage);
    connect(tabPages, &QTabWidget::currentChanged, this, &frmCompare::showPage);
    connect(cmdCopy, &QPushButton::clicked, this, [this] { SaveTaken::copy(taken()); });
    connect(cmdSave, &QPushButton::clicked, this, &frmCompare::save);
}

void frmCompare::Form_Load() {
    WorkbenchWindow::Form_Load();
    SetToolTips(mdiVelmar::instance().bToolTips);
    txtTemperature->setFocus();
}

void frmCompare::SetToolTips(bool showTips) {
    const auto set = [showTips](QWidget *control, const QString &tip) {
        control->setToolTip(showTips ? tip : QString());
    };
    set(txtTemperature, "The values of all grades are found at this temperature");
    set(txtThickness, "Without a thickness all bands are shown");
    set(pagValues->txtFilter, "Shows the properties that have all of these words in name or unit");
    set(pagChart->cboProperty, "The property that is drawn");
    set(cmdCopy, "Copy the table of this page with its headings");
    set(cmdSave, "Save the table of this page as a workbook, a table for other programs or a report");
}

void frmCompare::selectionChanged() {
    fraPages->showContent(!selected().isEmpty());
    m_values.read(selected());
    pagValues->gradesChanged();
    pagChart->gradesChanged();
    showPage();
}

CompareInput frmCompare::input() const {
    return {TypedTexts::temperature(txtTemperature->text()), TypedTexts::thickness(txtThickness->text())};
}

/// The other pages follow when they come to the front.
void frmCompare::showPage() {
    const CompareInput typed = input();
    QStringList faults{typed.temperature.error, typed.thickness.error};
    faults.removeAll(QString());
    if (selected().size() > Comparison::MostGrades)
        faults << QStringLiteral("The first %1 of the selected grades are compared.")
                      .arg(Comparison::MostGrades);
    const QString told = faults.join(QLatin1Char(' '));
    if (told != lblTyped->text()) announce(*this, told);
    lblTyped->setText(told);
    const QWidget *page = tabPages->currentWidget();
    if (page == pagValues) pagValues->show(typed);
    if (page == pagChart) pagChart->show(typed);
    if (page != pagComposition) return;
    QVector<Grades::Grade> grades;
    for (const auto &grade : m_values.grades())
        grades << grade->grade();
    pagComposition->show(grades);
}

TakenTable frmCompare::taken() const {
    if (tabPages->currentWidget() == pagValues) return pagValues->taken();
    return tabPages->currentWidget() == pagChart ? pagChart->taken(input()) : pagComposition->taken();
}

void frmCompare::save() {
    const CompareInput typed = input();
    QVector<TakenFact> facts = TakenTables::gradeFacts(selected().first(m_values.grades().size()));
    if (tabPages->currentWidget() != pagComposition && typed.isWhole())
        facts += ValueTables::atFacts(*typed.temperature, *typed.thickness);
    SaveTaken::saveAsking(taken(), facts, CompareTopic);
}

void frmCompare::restore(const QSettings &settings) {
    txtTemperature->setText(settings.value("temperature").toString());
    txtThickness->setText(settings.value("thickness").toString());
    pagValues->txtFilter->setText(settings.value("filter").toString());
    pagChart->setProperty(settings.value("property").toString());
}

void frmCompare::keep(QSettings &settings) const {
    settings.setValue("temperature", txtTemperature->text());
    settings.setValue("thickness", txtThickness->text());
    settings.setValue("filter", pagValues->txtFilter->text());
    settings.setValue("property", pagChart->property());
}
