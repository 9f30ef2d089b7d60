#include "workbench/FindControls.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/placement.h"
#include "workbench/PropertyPlot.h"
#include "workbench/TableReading.h"

namespace {

constexpr int LongestText = 60;
constexpr int BoxCharacters = 9;

QLineEdit *textBox(QWidget *window, const QString &name, const QString &accessibleName) {
    auto *made = named(new QLineEdit(window), name, accessibleName);
    made->setMaxLength(LongestText);
    return made;
}

void keepNarrow(QLineEdit *textBox) {
    textBox->setMaximumWidth(textBox->fontMetrics().averageCharWidth() * (BoxCharacters + 5));
    textBox->setMinimumWidth(textBox->fontMetrics().averageCharWidth() * BoxCharacters);
}

QLabel *caption(QWidget *window, const QString &text, QWidget *buddy) {
    auto *label = new QLabel(text, window);
    label->setBuddy(buddy);
    return label;
}

} // namespace

FindControls::FindControls(QWidget &window) {
    auto *layout = new QVBoxLayout(&window);
    layout->addLayout(makeTexts(&window));
    layout->addLayout(makeConditions(&window));
    makePages(&window);
    layout->addWidget(tabPages, 1);
    layout->addWidget(stkLine);
    layout->addLayout(makeCommands(&window));
    showConditions(1);
    orderTabs();
}

QHBoxLayout *FindControls::makeTexts(QWidget *window) {
    txtStandard = textBox(window, "txtStandard", "Standard");
    txtGroup = textBox(window, "txtGroup", "Group");
    txtProductForm = textBox(window, "txtProductForm", "Product form");
    lblTexts = named(new QLabel(window), "lblTexts");
    auto *layout = new QHBoxLayout;
    layout->addWidget(caption(window, "&Standard", txtStandard));
    layout->addWidget(txtStandard, 2);
    layout->addWidget(caption(window, "&Group", txtGroup));
    layout->addWidget(txtGroup, 1);
    layout->addWidget(caption(window, "Product &form", txtProductForm));
    layout->addWidget(txtProductForm, 2);
    layout->addWidget(lblTexts, 2);
    return layout;
}

QGridLayout *FindControls::makeConditions(QWidget *window) {
    auto *layout = new QGridLayout;
    layout->setVerticalSpacing(4);
    layout->setColumnStretch(0, 3);
    layout->setColumnStretch(5, 2);
    for (int i = 0; i < ValueSearch::MostConditions; ++i)
        makeCondition(window, layout, i);
    layout->addWidget(caption(window, "&Property", cboProperty(0)), 0, 0);
    layout->addWidget(caption(window, "&Temperature [°C]", txtTemperature(0)), 0, 1);
    layout->addWidget(caption(window, "T&hickness [mm]", txtThickness(0)), 0, 2);
    layout->addWidget(caption(window, "At &least", txtLeast(0)), 0, 3);
    layout->addWidget(caption(window, "At m&ost", txtGreatest(0)), 0, 4);
    cmdAdd = named(new QPushButton("&Add Condition", window), "cmdAdd", "Add Condition");
    cmdAdd->setAutoDefault(false);
    layout->addWidget(cmdAdd, ValueSearch::MostConditions + 1, 0, Qt::AlignLeft);
    return layout;
}

void FindControls::makeCondition(QWidget *window, QGridLayout *layout, int index) {
    const QString of = QStringLiteral(" of condition %1").arg(index + 1);
    cboProperty.add(index, new DropDownList(window), "Property" + of);
    cboProperty(index)->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboProperty(index)->setMinimumContentsLength(14);
    const auto add = [&](ControlArray<QLineEdit> &array, const QString &name, int column) {
        QLineEdit *made = array.add(index, new QLineEdit(window), name);
        made->setMaxLength(LongestText);
        keepNarrow(made);
        layout->addWidget(made, index + 1, column);
    };
    layout->addWidget(cboProperty(index), index + 1, 0);
    add(txtTemperature, "Temperature" + of + " in °C", 1);
    add(txtThickness, "Thickness" + of + " in mm", 2);
    add(txtLeast, "Least value" + of, 3);
    add(txtGreatest, "Greatest value" + of, 4);
    QLabel *left = lblLeft.add(index, new QLabel(window));
    left->setWordWrap(true);
    layout->addWidget(left, index + 1, 5);
    QToolButton *remove =
        cmdRemove.add(index, new QToolButton(window), "Remove condition " + QString::number(index + 1));
    remove->setText(QStringLiteral("×"));
    remove->setFocusPolicy(Qt::StrongFocus);
    layout->addWidget(remove, index + 1, 6);
}

void FindControls::makePages(QWidget *window) {
    tabPages = named(new QTabWidget(window), "tabPages", "Result");
    tdbFound = named(new TDBGrid, "tdbFound", "Grades found");
    tdbFound->setAlternatingRowStyle(true);
    tdbFound->setMarqueeStyle(MarqueeStyle::Row);
    plot = named(new PropertyPlot, "pagPlot");
    tabPages->addTab(tdbFound, "G&rades");
    tabPages->addTab(plot, "&Diagram");
    stkLine = named(new QStackedWidget(window), "stkLine");
    stkLine->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    lblSummary = named(new QLabel, "lblSummary");
    lblSummary->setWordWrap(true);
    lblSummary->setTextInteractionFlags(Qt::TextSelectableByMouse);
    reading = named(new TableReading, "panReading");
    stkLine->addWidget(lblSummary);
    stkLine->addWidget(reading);
}

QHBoxLayout *FindControls::makeCommands(QWidget *window) {
    const auto button = [window](const QString &text, const QString &name, const QString &accessibleName) {
        auto *made = named(new QPushButton(text, window), name, accessibleName);
        made->setAutoDefault(false);
        return made;
    };
    cmdSelect = button("Select &Material", "cmdSelect", "Select Material");
    lblSelected = named(new QLabel(window), "lblSelected");
    cmdCopy = button("&Copy with Headings", "cmdCopy", "Copy with Headings");
    cmdSave = button("Sa&ve...", "cmdSave", "Save");
    auto *layout = new QHBoxLayout;
    layout->addWidget(cmdSelect);
    layout->addWidget(lblSelected, 1);
    layout->addWidget(cmdCopy);
    layout->addWidget(cmdSave);
    return layout;
}

void FindControls::orderTabs() {
    QList<QWidget *> order{txtStandard, txtGroup, txtProductForm};
    for (int i = 0; i < ValueSearch::MostConditions; ++i)
        order << cboProperty(i) << txtTemperature(i) << txtThickness(i) << txtLeast(i) << txtGreatest(i)
              << cmdRemove(i);
    order << cmdAdd << tabPages << tdbFound << cmdSelect << cmdCopy << cmdSave;
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

QList<QLineEdit *> FindControls::boxes() const {
    QList<QLineEdit *> boxes{txtStandard, txtGroup, txtProductForm};
    for (int i = 0; i < ValueSearch::MostConditions; ++i)
        boxes << boxesOf(i);
    return boxes;
}

QList<QLineEdit *> FindControls::boxesOf(int condition) const {
    return {txtTemperature(condition), txtThickness(condition), txtLeast(condition), txtGreatest(condition)};
}

void FindControls::showConditions(int count) {
    for (int i = 0; i < ValueSearch::MostConditions; ++i) {
        const bool shown = i < count;
        cboProperty(i)->setVisible(shown);
        lblLeft(i)->setVisible(shown);
        cmdRemove(i)->setVisible(shown);
        cmdRemove(i)->setEnabled(count > 1);
        for (QLineEdit *each : boxesOf(i))
            each->setVisible(shown);
    }
    cmdAdd->setEnabled(count < ValueSearch::MostConditions);
}

void FindControls::setTips(bool shown) {
    const auto tip = [shown](QWidget *control, const QString &text) {
        control->setToolTip(shown ? text : QString());
    };
    tip(txtStandard, "A part of the standard's name; *, ? and # are wildcards");
    tip(txtGroup, "A part of the group; *, ? and # are wildcards");
    tip(txtProductForm, "A product form that the standard covers");
    for (int i = 0; i < ValueSearch::MostConditions; ++i) {
        tip(cboProperty(i), "What has to be within the limits");
        tip(txtTemperature(i), "At which temperature, in °C");
        tip(txtThickness(i), "In which thickness, in mm; without one the best band counts");
        tip(txtLeast(i), "The least value, itself included; none where it is empty");
        tip(txtGreatest(i), "The greatest value, itself included; none where it is empty");
        tip(cmdRemove(i), "Remove this condition");
    }
    tip(cmdAdd, "One more condition, that has to hold as well");
    tip(cmdSelect, "Add the marked grade to the selected materials");
    tip(cmdCopy, "Copy all rows with their headings");
    tip(cmdSave, "Save all rows as CSV, TSV or XLSX");
}
