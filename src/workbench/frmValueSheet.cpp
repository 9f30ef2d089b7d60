#include "workbench/frmValueSheet.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "data/Material.h"
#include "data/modDBase.h"
#include "exchange/value_tables.h"
#include "platform/forms/announcement.h"
#include "platform/forms/busy_pointer.h"
#include "platform/forms/placement.h"
#include "platform/forms/tdb_grid.h"
#include "reports/save_taken.h"
#include "shell/mdiVelmar.h"
#include "workbench/grid_look.h"
#include "workbench/number_box.h"
#include "workbench/SelectedValues.h"
#include "workbench/SelectionPages.h"
#include "workbench/sheet_cells.h"
#include "workbench/SheetColumns.h"

namespace {

const QString SheetTopic = QStringLiteral("Value_Sheet.htm");

QString headingOf(const ValueColumn &column) {
    const QString &unit = column.property.unit;
    QStringList lines{column.property.label};
    if (!column.band.isEmpty()) lines << column.band;
    if (!unit.isEmpty()) lines << '[' + TakenTables::bareUnit(unit) + ']';
    return lines.join(QStringLiteral("\r\n"));
}

} // namespace

frmValueSheet::frmValueSheet()
    : WorkbenchWindow("frmValueSheet", "Values over Temperature", SheetTopic)
    , cboGrade(named(new QComboBox, "cboGrade", "Grade"))
    , txtFrom(numberBox("txtFrom", "First temperature in °C"))
    , txtTo(numberBox("txtTo", "Last temperature in °C"))
    , txtStep(numberBox("txtStep", "Step in °C"))
    , lblTyped(named(new QLabel, "lblTyped"))
    , lstColumns(named(new SheetColumns(this), "fraColumns"))
    , tdbSheet(named(new TDBGrid, "tdbSheet", "Values over temperature"))
    , cmdCopy(named(new QPushButton("&Copy"), "cmdCopy", "Copy the sheet with its headings"))
    , cmdSave(named(new QPushButton("Sa&ve..."), "cmdSave", "Save the sheet")) {
    fraPages = named(new SelectionPages("whose values you want to follow", layOut(), this), "fraPages");
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(fraPages);
    resize(900, 600);
    WorkbenchGrid::setLook(*tdbSheet);
    connectControls();
}

QWidget *frmValueSheet::layOut() {
    auto *content = new QWidget;
    auto *boxes = new QHBoxLayout;
    cboGrade->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboGrade->setMinimumContentsLength(20);
    for (const auto &[caption, box] : {std::pair<const char *, QWidget *>("&Grade", cboGrade),
                                       std::pair<const char *, QWidget *>("&From [°C]", txtFrom),
                                       std::pair<const char *, QWidget *>("&To [°C]", txtTo),
                                       std::pair<const char *, QWidget *>("&Step [°C]", txtStep)}) {
        auto *label = new QLabel(caption);
        label->setBuddy(box);
        boxes->addWidget(label);
        boxes->addWidget(box);
    }
    boxes->addWidget(lblTyped, 1);
    lblTyped->setWordWrap(true);
    auto *tables = new QHBoxLayout;
    lstColumns->setFixedWidth(lstColumns->fontMetrics().averageCharWidth() * 36);
    tables->addWidget(lstColumns);
    tables->addWidget(tdbSheet, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdCopy);
    buttons->addWidget(cmdSave);
    auto *layout = new QVBoxLayout(content);
    layout->addLayout(boxes);
    layout->addLayout(tables, 1);
    layout->addLayout(buttons);
    return content;
}

void frmValueSheet::connectControls() {
    for (QLineEdit *box : {txtFrom, txtTo, txtStep})
        connect(box, &QLineEdit::textChanged, this, &frmValueSheet::showRows);
    connect(cboGrade, &QComboBox::currentIndexChanged, this, &frmValueSheet::gradeChosen);
    connect(lstColumns, &SheetColumns::chosenChanged, this, &frmValueSheet::columnsChosen);
    connect(cmdCopy, &QPushButton::clicked, this, [this] { SaveTaken::copy(ValueTables::sheet(sheet())); });
    connect(cmdSave, &QPushButton::clicked, this, &frmValueSheet::save);
}

void frmValueSheet::Form_Load() {
    WorkbenchWindow::Form_Load();
    SetToolTips(mdiVelmar::instance().bToolTips);
    txtFrom->setFocus();
}

void frmValueSheet::SetToolTips(bool showTips) {
    const auto set = [showTips](QWidget *control, const QString &tip) {
        control->setToolTip(showTips ? tip : QString());
    };
    set(cboGrade, "The selected grades");
    set(txtFrom, "The temperature of the first row");
    set(txtTo, "No row is above this temperature");
    set(txtStep, "From row to row");
    set(lstColumns->cmdAll, "Tick all columns");
    set(lstColumns->cmdNone, "Tick no column");
    set(cmdCopy, "Copy the sheet with its headings");
    set(cmdSave, "Save the sheet as a workbook, a table for other programs or a report");
}

/// The one that was shown before, else the one in the window in front, else the first.
int frmValueSheet::currentGrade() const {
    const auto placeOf = [this](int id) {
        for (int i = 0; i < selected().size(); ++i)
            if (selected()[i].id == id) return i;
        return -1;
    };
    const auto &current = mdiVelmar::instance().mCurrent;
    const int shown = m_values ? placeOf(m_values->grade().id) : -1;
    if (shown >= 0) return shown;
    return qMax(current ? placeOf(current->ID()) : 0, 0);
}

void frmValueSheet::selectionChanged() {
    fraPages->showContent(!selected().isEmpty());
    const int current = currentGrade();
    {
        const QSignalBlocker notTheUser(cboGrade);
        cboGrade->clear();
        for (const Grades::Grade &grade : selected())
            cboGrade->addItem(ValueTables::title(grade));
        cboGrade->setCurrentIndex(selected().isEmpty() ? -1 : current);
    }
    gradeChosen();
}

void frmValueSheet::gradeChosen() {
    const Grades::Grade grade = selected().value(cboGrade->currentIndex());
    if (selected().isEmpty()) {
        m_values = nullptr;
    } else if (!m_values || m_values->grade().id != grade.id) {
        const BusyPointer busy;
        m_values = readGradeValues(grade);
    }
    lstColumns->offer(m_values ? ValueSheets::columns(*m_values, Properties::all(*modDBase::dbMain()))
                               : QVector<ValueColumn>());
    columnsChosen();
}

void frmValueSheet::columnsChosen() {
    m_columns = lstColumns->chosen();
    QStringList captions{"Temperature\r\n[°C]"};
    QStringList samples{"Temperature"};
    for (const ValueColumn &column : m_columns) {
        captions << headingOf(column);
        samples << (column.property.isCreep() ? "Rp1,0 / 100 000 h" : "(1000) - 1500mm");
    }
    tdbSheet->setCells(nullptr);
    WorkbenchGrid::setColumns(*tdbSheet, captions, samples);
    showRows();
}

void frmValueSheet::showRows() {
    const auto typed = ValueSheets::temperatures(txtFrom->text(), txtTo->text(), txtStep->text());
    m_temperatures = typed ? *typed : QStringList();
    QString told = typed.error;
    if (told.isEmpty() && m_values && lstColumns->lstColumns->count() == 0)
        told = QStringLiteral("The grade has no design values.");
    else if (told.isEmpty() && m_columns.isEmpty())
        told = QStringLiteral("Tick the columns that you want.");
    if (told != lblTyped->text()) announce(*this, told);
    lblTyped->setText(told);
    cmdCopy->setEnabled(!m_temperatures.isEmpty() && !m_columns.isEmpty());
    cmdSave->setEnabled(cmdCopy->isEnabled());
    tdbSheet->setCells(m_values && !m_columns.isEmpty() ? SheetCells::of(m_values, m_columns, m_temperatures,
                                                                         WorkbenchGrid::markColour(*tdbSheet))
                                                        : nullptr);
}

ValueSheet frmValueSheet::sheet() const {
    const BusyPointer busy;
    return ValueSheets::sheet(*m_values, m_columns, m_temperatures);
}

void frmValueSheet::save() {
    SaveTaken::saveAsking(ValueTables::sheet(sheet()), TakenTables::gradeFacts({m_values->grade()}),
                          SheetTopic);
}

void frmValueSheet::restore(const QSettings &settings) {
    txtFrom->setText(settings.value("from", "20").toString());
    txtTo->setText(settings.value("to", "400").toString());
    txtStep->setText(settings.value("step", "20").toString());
    lstColumns->setLeftOut(settings.value("leftOut").toStringList());
}

void frmValueSheet::keep(QSettings &settings) const {
    settings.setValue("from", txtFrom->text());
    settings.setValue("to", txtTo->text());
    settings.setValue("step", txtStep->text());
    settings.setValue("leftOut", lstColumns->leftOut());
}
