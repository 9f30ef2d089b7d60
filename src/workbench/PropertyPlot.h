// The page that draws two properties of all grades against each other.
#pragma once

#include <memory>
#include <optional>

#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QWidget>

#include "platform/forms/control_array.h"
#include "platform/forms/drop_down_list.h"
#include "platform/forms/scatter_plot.h"
#include "workbench/condition_inputs.h"
#include "workbench/found_grades.h"

class QGridLayout;

/// Axis 0 is X, axis 1 is Y. A temperature or thickness that is left empty is that of the first condition,
/// which the box shows in grey.
class PropertyPlot : public QWidget {
    Q_OBJECT
public:
    explicit PropertyPlot(QWidget *parent = nullptr);

    ControlArray<DropDownList> cboAxis{"cboAxis"};
    ControlArray<QLineEdit> txtAxisTemperature{"txtAxisTemperature"};
    ControlArray<QLineEdit> txtAxisThickness{"txtAxisThickness"};
    ControlArray<QLabel> lblAxis{"lblAxis"};
    ScatterPlot *plot;
    /// What the current dot is.
    QLabel *lblDot;

    void setProperties(const QVector<Property> &properties);
    void restore(const QSettings &settings);
    void keep(QSettings &settings) const;
    /// Of the first condition.
    void follow(const ConditionTexts &texts);
    void setTips(bool shown);

    /// The properties on the axes.
    QVector<Property> properties() const;
    /// Draws all grades; `found` stand out. The tables of properties() have been read.
    void show(const std::shared_ptr<const ValueSearch> &search, const FoundGrades &found);
    void clear(const QString &notice);
    /// The place in the list of grades of the current dot; -1 without one.
    int currentGrade() const;

Q_SIGNALS:
    void changed();
    /// The user wants the grade at this place of the list.
    void chosen(int grade);
    void currentChanged();

private:
    using Axes = std::array<ValueCondition, 2>;

    void makeAxis(QGridLayout *layout, int axis);
    std::optional<Axes> axes();
    void draw(const Axes &axes);
    void emphasise(const FoundGrades &found);
    QString nameOf(int dot) const;
    int gradeOf(int dot) const { return m_points[static_cast<std::size_t>(dot)].grade; }

    QVector<Property> m_properties;
    std::shared_ptr<const ValueSearch> m_search;
    std::optional<Axes> m_drawn;
    std::vector<ValueSearch::Point> m_points;
};
