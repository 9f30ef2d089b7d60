#include "workbench/PropertyPlot.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "platform/forms/placement.h"
#include "platform/runtime/conversions.h"

namespace {

constexpr int LongestPlotText = 20;
const QStringList AxisNames{"X", "Y"};

QString titleOf(const ValueCondition &condition) {
    const QString unit = ConditionInputs::unit(condition.property);
    QString title = condition.property.label + (unit.isEmpty() ? QString() : " [" + unit + "]") + ", " +
                    condition.temperature + " °C";
    if (condition.thickness) title += ", " + CStr(*condition.thickness) + " mm";
    return title;
}

QString textOr(const QLineEdit *box) {
    return box->text().trimmed().isEmpty() ? box->placeholderText() : box->text();
}

} // namespace

PropertyPlot::PropertyPlot(QWidget *parent)
    : QWidget(parent)
    , plot(named(new ScatterPlot(this), "plot", "Diagram of two properties"))
    , lblDot(named(new QLabel(this), "lblDot")) {
    auto *axes = new QGridLayout;
    axes->setColumnStretch(1, 2);
    axes->setColumnStretch(6, 2);
    for (int axis = 0; axis < 2; ++axis)
        makeAxis(axes, axis);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(axes);
    layout->addWidget(plot, 1);
    layout->addWidget(lblDot);
    plot->setNamer([this](int dot) { return nameOf(dot); });
    connect(plot, &ScatterPlot::chosen, this, [this](int dot) { Q_EMIT chosen(gradeOf(dot)); });
    connect(plot, &ScatterPlot::currentChanged, this, [this](int dot) {
        lblDot->setText(dot < 0 ? QString() : nameOf(dot));
        Q_EMIT currentChanged();
    });
}

void PropertyPlot::makeAxis(QGridLayout *layout, int axis) {
    const QString &name = AxisNames[axis];
    cboAxis.add(axis, new DropDownList(this), "Property of " + name);
    cboAxis(axis)->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboAxis(axis)->setMinimumContentsLength(14);
    auto *caption = new QLabel("&" + name, this);
    caption->setBuddy(cboAxis(axis));
    const auto box = [&](ControlArray<QLineEdit> &array, const QString &accessibleName) {
        QLineEdit *made = array.add(axis, new QLineEdit(this), accessibleName);
        made->setMaxLength(LongestPlotText);
        made->setMaximumWidth(made->fontMetrics().averageCharWidth() * 12);
        connect(made, &QLineEdit::textChanged, this, &PropertyPlot::changed);
        return made;
    };
    layout->addWidget(caption, axis, 0);
    layout->addWidget(cboAxis(axis), axis, 1);
    layout->addWidget(new QLabel("at [°C]", this), axis, 2);
    layout->addWidget(box(txtAxisTemperature, "Temperature of " + name + " in °C"), axis, 3);
    layout->addWidget(new QLabel("in [mm]", this), axis, 4);
    layout->addWidget(box(txtAxisThickness, "Thickness of " + name + " in mm"), axis, 5);
    lblAxis.add(axis, new QLabel(this))->setWordWrap(true);
    layout->addWidget(lblAxis(axis), axis, 6);
    connect(cboAxis(axis), &QComboBox::currentIndexChanged, this, &PropertyPlot::changed);
}

void PropertyPlot::setProperties(const QVector<Property> &properties) {
    m_properties = properties;
    for (const auto &[axis, list] : cboAxis)
        for (const Property &property : properties)
            list->addItem(property.label);
    // At first the strength over the stiffness: both are there for most.
    if (const auto second = Properties::named(properties, "ModElast"))
        cboAxis(1)->setCurrentIndex(static_cast<int>(properties.indexOf(*second)));
}

void PropertyPlot::restore(const QSettings &settings) {
    for (const auto &[axis, list] : cboAxis) {
        const QString key = QStringLiteral("axis%1/").arg(axis + 1);
        const auto property = Properties::named(m_properties, settings.value(key + "property").toString());
        if (property) list->setCurrentIndex(static_cast<int>(m_properties.indexOf(*property)));
        txtAxisTemperature(axis)->setText(settings.value(key + "temperature").toString());
        txtAxisThickness(axis)->setText(settings.value(key + "thickness").toString());
    }
}

void PropertyPlot::keep(QSettings &settings) const {
    for (const auto &[axis, list] : cboAxis) {
        const QString key = QStringLiteral("axis%1/").arg(axis + 1);
        settings.setValue(key + "property", m_properties.value(list->currentIndex()).name());
        settings.setValue(key + "temperature", txtAxisTemperature(axis)->text());
        settings.setValue(key + "thickness", txtAxisThickness(axis)->text());
    }
}

void PropertyPlot::follow(const ConditionTexts &texts) {
    for (const auto &[axis, box] : txtAxisTemperature)
        box->setPlaceholderText(texts.temperature.trimmed());
    for (const auto &[axis, box] : txtAxisThickness)
        box->setPlaceholderText(texts.thickness.trimmed());
}

void PropertyPlot::setTips(bool shown) {
    const auto tip = [shown](QWidget *control, const QString &text) {
        control->setToolTip(shown ? text : QString());
    };
    for (const auto &[axis, list] : cboAxis) {
        tip(list, "What is drawn along " + AxisNames[axis]);
        tip(txtAxisTemperature(axis), "At which temperature, in °C; empty for that of the first condition");
        tip(txtAxisThickness(axis), "In which thickness, in mm; empty for that of the first condition");
    }
}

QVector<Property> PropertyPlot::properties() const {
    return {m_properties.value(cboAxis(0)->currentIndex()), m_properties.value(cboAxis(1)->currentIndex())};
}

/// What is wrong stands beside its boxes.
std::optional<PropertyPlot::Axes> PropertyPlot::axes() {
    Axes axes;
    bool isGood = true;
    for (int axis = 0; axis < 2; ++axis) {
        const auto condition = ConditionInputs::condition(
            properties()[axis], {textOr(txtAxisTemperature(axis)), textOr(txtAxisThickness(axis)), {}, {}});
        lblAxis(axis)->setText(condition.error);
        txtAxisTemperature(axis)->setAccessibleDescription(condition.error);
        if (condition)
            axes[static_cast<std::size_t>(axis)] = *condition;
        else
            isGood = false;
    }
    return isGood ? std::optional(axes) : std::nullopt;
}

void PropertyPlot::show(const std::shared_ptr<const ValueSearch> &search, const FoundGrades &found) {
    const std::optional<Axes> wanted = axes();
    if (!wanted) return clear("Nothing is drawn until both axes can be read.");
    m_search = search;
    if (m_drawn != wanted) draw(*wanted);
    emphasise(found);
}

void PropertyPlot::clear(const QString &notice) {
    m_drawn.reset();
    m_points.clear();
    plot->setDots({});
    plot->setNotice(notice);
    lblDot->clear();
}

void PropertyPlot::draw(const Axes &axes) {
    const int grade = currentGrade();
    plot->setDots({}); // else it would ask for the name of a dot that is no longer among the points
    m_drawn = axes;
    m_points = m_search->points(axes[0], axes[1]);
    std::vector<QPointF> dots;
    dots.reserve(m_points.size());
    int current = -1;
    for (const ValueSearch::Point &point : m_points) {
        if (point.grade == grade) current = static_cast<int>(dots.size());
        dots.emplace_back(point.x, point.y);
    }
    plot->setAxisTitles(titleOf(axes[0]), titleOf(axes[1]));
    plot->setNotice("No grade has both values.");
    plot->setDots(std::move(dots));
    plot->setCurrent(current);
    lblDot->setText(current < 0 ? QString() : nameOf(current));
}

void PropertyPlot::emphasise(const FoundGrades &found) {
    std::vector<bool> ofGrade(static_cast<std::size_t>(m_search->grades().count()));
    for (const int grade : found.result.grades)
        ofGrade[static_cast<std::size_t>(grade)] = true;
    std::vector<bool> ofDot;
    ofDot.reserve(m_points.size());
    for (const ValueSearch::Point &point : m_points)
        ofDot.push_back(ofGrade[static_cast<std::size_t>(point.grade)]);
    plot->setEmphasis(std::move(ofDot));
}

int PropertyPlot::currentGrade() const {
    return plot->current() < 0 ? -1 : gradeOf(plot->current());
}

QString PropertyPlot::nameOf(int dot) const {
    const int place = gradeOf(dot);
    const Grades::Grade &grade = m_search->grades()[place];
    QStringList values;
    for (const ValueCondition &condition : *m_drawn) {
        const auto value = m_search->at(condition, place);
        if (!value) continue;
        const QString unit = ConditionInputs::unit(condition.property);
        values << condition.property.label + " " + value->text.trimmed() + (unit.isEmpty() ? "" : " " + unit);
    }
    return (grade.name + " " + grade.number).trimmed() + ", " + grade.standard + ": " + values.join("; ");
}
