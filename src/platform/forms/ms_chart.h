// The chart control.
#pragma once

#include <QWidget>

#include "platform/forms/chart_drawing.h"
#include "platform/runtime/x_array_db.h"

/// An XY chart with the classic properties. Setting one redraws the chart at the next paint.
class MSChart : public QWidget {
    Q_OBJECT

public:
    /// The only type there is: pairs of columns, the X values and the Y values of one curve.
    static constexpr int VtChChartType2dXY = 16;

    explicit MSChart(QWidget *parent = nullptr);

    int chartType() const { return VtChChartType2dXY; }
    /// Raises 380 for any type but the XY one.
    void setChartType(int type);

    const XArrayDB &ChartData() const { return m_data; }
    /// Also sets ColumnCount to the number of columns, Column to 1, and gives every column its plain label.
    /// What counts as a point: see seriesFromPairs.
    void setChartData(const XArrayDB &cells);

    QString TitleText() const { return m_content.title; }
    void setTitleText(const QString &text);

    /// Axis 0 is X, axis 1 is Y; any other raises 9.
    QString AxisTitle(int axis) const;
    void setAxisTitle(int axis, const QString &text);

    bool UniformAxis() const { return m_content.uniformAxis; }
    /// One unit takes the same length on both axes.
    void setUniformAxis(bool uniform);

    bool ShowLegend() const { return m_content.showLegend; }
    void setShowLegend(bool show);

    /// An upright line at this X value with its label; without a value there is none.
    void setMark(std::optional<double> x, const QString &label = {});

    int ColumnCount() const { return int(m_labels.size()); }
    /// Data columns beyond the count are not drawn. Raises 9 below 0.
    void setColumnCount(int count);

    /// The column, from 1, to which ColumnLabel belongs.
    int Column() const { return m_column; }
    /// Raises 9 outside 1 to ColumnCount.
    void setColumn(int column);
    /// A curve is named by the label of its X column. Both raise 9 while there are no columns.
    QString ColumnLabel() const;
    void setColumnLabel(const QString &label);

    /// Takes type, data, title, axis titles, legend, mark and the label of every column; the axes keep their
    /// units.
    void copyFrom(const MSChart &other);

    /// The chart for a report, laid out for `size` pixels of 1/96 inch.
    ChartPicture picture(QSize size) const;

    /// At which title, legend and axes are whole.
    QSize smallestSize() const;
    QSize sizeHint() const override { return {480, 300}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::size_t labelIndex() const;
    ChartContent content() const;
    void changed();

    XArrayDB m_data;
    ChartContent m_content;
    std::vector<QString> m_labels;
    int m_column = 1;
    /// Empty when a property has changed since it was drawn.
    ChartPicture m_screen;
};
