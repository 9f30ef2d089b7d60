#include "workbench/ComparisonChartPage.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "design/value_text.h"
#include "exchange/value_tables.h"
#include "platform/forms/ms_chart.h"
#include "platform/forms/placement.h"
#include "shell/mdiVelmar.h"
#include "workbench/SelectedValues.h"

namespace {

constexpr int XAxis = 0;
constexpr int YAxis = 1;

ComparisonChart chartOf(const SelectedValues &values, const Property &property, const CompareInput &input) {
    if (!input.thickness) return {};
    return ComparisonChart::of(values.grades(), property, *input.thickness,
                               mdiVelmar::instance().numberFlags());
}

} // namespace

ComparisonChartPage::ComparisonChartPage(const SelectedValues &values, QWidget *parent)
    : QWidget(parent)
    , cboProperty(named(new QComboBox(this), "cboProperty", "Property"))
    , chtValues(named(new MSChart(this), "chtValues"))
    , lblMissing(named(new QLabel(this), "lblMissing"))
    , m_values(values) {
    auto *lblProperty = new QLabel("&Property", this);
    lblProperty->setBuddy(cboProperty);
    cboProperty->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboProperty->setMinimumContentsLength(30);
    lblMissing->setWordWrap(true);
    chtValues->setMinimumSize(300, 200);
    auto *top = new QHBoxLayout;
    top->addWidget(lblProperty);
    top->addWidget(cboProperty);
    top->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(chtValues, 1);
    layout->addWidget(lblMissing);
    connect(cboProperty, &QComboBox::currentIndexChanged, this, &ComparisonChartPage::chosenByUser);
}

void ComparisonChartPage::gradesChanged() {
    const QSignalBlocker ownChoice(cboProperty);
    cboProperty->clear();
    for (const Property &property : m_values.properties())
        cboProperty->addItem(property.label, property.name());
    setProperty(m_property);
}

void ComparisonChartPage::setProperty(const QString &name) {
    const QSignalBlocker ownChoice(cboProperty);
    m_property = name;
    cboProperty->setCurrentIndex(qMax(cboProperty->findData(name), 0));
}

void ComparisonChartPage::chosenByUser() {
    m_property = cboProperty->currentData().toString();
    Q_EMIT propertyChanged();
}

const Property *ComparisonChartPage::chosen() const {
    const int index = cboProperty->currentIndex();
    return index < 0 || index >= m_values.properties().size() ? nullptr : &m_values.properties()[index];
}

void ComparisonChartPage::show(const CompareInput &input) {
    const Property *property = chosen();
    chtValues->setVisible(property != nullptr);
    lblMissing->setText(QStringLiteral("None of the grades has design values."));
    lblMissing->setVisible(!property);
    if (!property) return;
    const ComparisonChart chart = chartOf(m_values, *property, input);
    chtValues->setTitleText(property->label);
    chtValues->setAxisTitle(XAxis, QStringLiteral("Temperature [°C]"));
    chtValues->setAxisTitle(YAxis, property->unit.isEmpty() ? property->label : property->unit);
    chtValues->setChartData(chart.points);
    chtValues->setColumnCount(2 * static_cast<int>(chart.legends.size()));
    for (int i = 0; i < chart.legends.size(); ++i) {
        chtValues->setColumn(2 * i + 1);
        chtValues->setColumnLabel(chart.legends[i]);
    }
    chtValues->setShowLegend(!chart.legends.isEmpty());
    const auto line = input.temperature ? ValueText::numberIn(*input.temperature) : std::nullopt;
    chtValues->setMark(line, line ? *input.temperature + " °C" : QString());
    lblMissing->setText("Without a curve: " + chart.missing.join(QLatin1Char(' ')));
    lblMissing->setVisible(!chart.missing.isEmpty());
}

TakenTable ComparisonChartPage::taken(const CompareInput &input) const {
    const Property *property = chosen();
    if (!property) return {QStringLiteral("Curves"), {}, {}};
    return ValueTables::curves(chartOf(m_values, *property, input), *property);
}
