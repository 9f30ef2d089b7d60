#include "platform/forms/ms_chart.h"

#include <QPainter>

#include "platform/runtime/runtime_error.h"

namespace {

QString plainLabel(std::size_t index) {
    return QStringLiteral("C%1").arg(index + 1);
}

} // namespace

MSChart::MSChart(QWidget *parent)
    : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    changed();
}

void MSChart::setChartType(int type) {
    if (type != VtChChartType2dXY) throw RuntimeError(380);
}

void MSChart::setChartData(const XArrayDB &cells) {
    m_data = cells;
    m_column = 1;
    m_labels.clear();
    setColumnCount(cells.Count(2));
}

void MSChart::setTitleText(const QString &text) {
    m_content.title = text;
    changed();
}

QString MSChart::AxisTitle(int axis) const {
    if (axis != 0 && axis != 1) throw RuntimeError(9);
    return m_content.axisTitle[axis];
}

void MSChart::setAxisTitle(int axis, const QString &text) {
    if (axis != 0 && axis != 1) throw RuntimeError(9);
    m_content.axisTitle[axis] = text;
    changed();
}

void MSChart::setUniformAxis(bool uniform) {
    m_content.uniformAxis = uniform;
    changed();
}

void MSChart::setShowLegend(bool show) {
    m_content.showLegend = show;
    changed();
}

void MSChart::setMark(std::optional<double> x, const QString &label) {
    m_content.mark = x ? std::optional(ChartMark{*x, label}) : std::nullopt;
    changed();
}

void MSChart::setColumnCount(int count) {
    if (count < 0) throw RuntimeError(9);
    const std::size_t before = m_labels.size();
    m_labels.resize(std::size_t(count));
    for (std::size_t i = before; i < m_labels.size(); ++i)
        m_labels[i] = plainLabel(i);
    changed();
}

void MSChart::setColumn(int column) {
    if (column < 1 || column > ColumnCount()) throw RuntimeError(9);
    m_column = column;
}

std::size_t MSChart::labelIndex() const {
    if (m_column > ColumnCount()) throw RuntimeError(9);
    return std::size_t(m_column - 1);
}

QString MSChart::ColumnLabel() const {
    return m_labels[labelIndex()];
}

void MSChart::setColumnLabel(const QString &label) {
    m_labels[labelIndex()] = label;
    changed();
}

ChartContent MSChart::content() const {
    ChartContent content = m_content;
    content.series = seriesFromPairs(m_data, ColumnCount());
    for (std::size_t i = 0; i < content.series.size(); ++i)
        content.series[i].label = m_labels[2 * i];
    return content;
}

void MSChart::copyFrom(const MSChart &other) {
    const bool uniformAxis = m_content.uniformAxis;
    m_data = other.m_data;
    m_content = other.m_content;
    m_content.uniformAxis = uniformAxis;
    m_labels = other.m_labels;
    m_column = static_cast<int>(m_labels.size());
    changed();
}

ChartPicture MSChart::picture(QSize size) const {
    return drawChart(content(), size, ChartMedium::Paper);
}

QSize MSChart::smallestSize() const {
    return smallestChart(content());
}

void MSChart::changed() {
    m_screen = {};
    const QString title = m_content.title.simplified();
    setAccessibleName(title.isEmpty() ? tr("Chart") : tr("Chart: %1").arg(title));
    QStringList curves;
    if (m_content.showLegend) {
        for (const ChartSeries &series : content().series)
            curves.append(series.label.simplified());
    }
    // Curves that are bands of one property have it in the title alone.
    const QString over = m_content.axisTitle[0].simplified();
    const QString up = m_content.axisTitle[1].simplified();
    const QString what = up.isEmpty() ? title : up;
    const QString axes = what.isEmpty() || over.isEmpty() ? what + over : tr("%1 over %2").arg(what, over);
    QString description = curves.isEmpty() ? axes : tr("%1. Curves: %2").arg(axes, curves.join(", "));
    if (m_content.mark) description += tr(". Line at %1").arg(m_content.mark->label);
    setAccessibleDescription(description);
    update();
}

void MSChart::paintEvent(QPaintEvent *) {
    if (m_screen.size() != size()) m_screen = drawChart(content(), size(), ChartMedium::Screen);
    QPainter painter(this);
    m_screen.paint(&painter, rect());
}
