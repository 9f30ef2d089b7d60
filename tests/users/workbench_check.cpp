#include "tests/users/workbench_check.h"

#include <algorithm>

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QLocale>

#include "data/Material.h"
#include "data/modDBase.h"
#include "exchange/value_tables.h"
#include "platform/forms/tdb_grid.h"
#include "shell/mdiVelmar.h"
#include "workbench/ComparisonPage.h"
#include "workbench/frmCard.h"
#include "workbench/frmCompare.h"
#include "workbench/frmFindValue.h"
#include "workbench/frmValueSheet.h"
#include "workbench/SelectedValues.h"
#include "workbench/SheetColumns.h"

namespace {

/// More lenient than the windows: what is none here is none there.
std::optional<double> number(const QLineEdit *box) {
    bool isNumber = false;
    const double number =
        QLocale::c().toDouble(box->text().trimmed().replace(QLatin1Char(','), QLatin1Char('.')), &isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

bool isEmpty(const QLineEdit *box) {
    return box->text().trimmed().isEmpty();
}

bool isNone(const QLineEdit *box) {
    return !isEmpty(box) && !number(box);
}

std::optional<double> thicknessIn(const QLineEdit *box) {
    return isEmpty(box) ? std::nullopt : number(box);
}

QString difference(const TDBGrid &grid, int row, int column, const QString &right) {
    const QString shown = grid.CellText(row, column);
    if (shown == right) return {};
    return QString("%1 shows '%2' in row %3, column %4, which should be '%5'")
        .arg(grid.objectName(), shown)
        .arg(row)
        .arg(column)
        .arg(right);
}

/// In a condition: its limits are inclusive.
bool isWithin(const ValueCell &cell, const QLineEdit *least, const QLineEdit *greatest) {
    return cell.value && (isEmpty(least) || *cell.value >= *number(least)) &&
           (isEmpty(greatest) || *cell.value <= *number(greatest));
}

bool isWhole(const QString &file, const QByteArray &bytes) {
    if (file.endsWith(".pdf")) return bytes.startsWith("%PDF") && bytes.trimmed().endsWith("%%EOF");
    if (file.endsWith(".rtf")) return bytes.startsWith("{\\rtf") && bytes.trimmed().endsWith('}');
    if (file.endsWith(".xlsx")) return bytes.startsWith("PK") && bytes.last(22).startsWith("PK\5\6");
    const bool isText = QStringList{"csv", "tsv", "txt", "inp", "mac"}.contains(file.section('.', -1));
    return isText && bytes.endsWith('\n');
}

} // namespace

QString WorkbenchCheck::fault(const QWidget &window) {
    if (const auto *compare = dynamic_cast<const frmCompare *>(&window)) return faultIn(*compare);
    if (const auto *find = dynamic_cast<const frmFindValue *>(&window)) return faultIn(*find);
    if (const auto *sheet = dynamic_cast<const frmValueSheet *>(&window)) return faultIn(*sheet);
    if (const auto *card = dynamic_cast<const frmCard *>(&window)) return faultIn(*card);
    return {};
}

std::shared_ptr<const GradeValues> WorkbenchCheck::values(const Grades::Grade &grade) {
    auto &values = m_values[grade.id];
    if (!values) values = readGradeValues(grade);
    return values;
}

QString WorkbenchCheck::faultIn(const frmCompare &window) {
    ComparedGrades grades;
    for (const auto &material : mdiVelmar::instance().colMaterials)
        grades << values(Grades::of(*material));
    if (grades.isEmpty())
        return window.tabPages->isVisible() ? "frmCompare shows grades, of none" : QString();
    const bool isWrong = !number(window.txtTemperature) || isNone(window.txtThickness);
    const bool isTold = !window.lblTyped->text().isEmpty();
    if (isWrong && !isTold) return "frmCompare does not tell what is wrong with its boxes";
    if (window.tabPages->currentWidget() != window.pagValues) return {};
    const TDBGrid &grid = *window.pagValues->tdbValues;
    const auto temperature = TypedTexts::temperature(window.txtTemperature->text());
    const QVector<Property> all = Properties::all(*modDBase::dbMain());
    const QString filter = window.pagValues->txtFilter->text();
    const auto rows =
        isTold ? Comparison::withoutValues(grades, all, filter)
               : Comparison::rows(grades, all, *temperature, thicknessIn(window.txtThickness), filter);
    if (grid.RowCount() != rows.size() || grid.ColumnCount() != grades.size() + 2)
        return QString("frmCompare has %1 rows in the place of %2").arg(grid.RowCount()).arg(rows.size());
    for (int row = 0; row < rows.size(); ++row)
        for (int i = 0; i < grades.size(); ++i)
            if (const QString fault = difference(grid, row, i + 2, rows[row].cells[i].text());
                !fault.isEmpty())
                return fault;
    return {};
}

QString WorkbenchCheck::faultIn(const frmFindValue &window) {
    const QVector<Property> all = Properties::all(*modDBase::dbMain());
    int conditions = 0;
    bool isAsked = window.stkLine->currentWidget() == window.lblSummary;
    for (; conditions < ValueSearch::MostConditions && window.cboProperty(conditions)->isVisible();
         ++conditions) {
        const QList<QLineEdit *> boxes = window.boxesOf(conditions);
        const bool isWrong = !number(boxes[0]) || std::any_of(boxes.begin() + 1, boxes.end(), isNone);
        const QString told = window.lblLeft(conditions)->text();
        if (isWrong && (told.isEmpty() || told.startsWith("leaves")))
            return QString("frmFindValue does not tell what is wrong with condition %1").arg(conditions + 1);
        isAsked = isAsked && told.startsWith("leaves");
    }
    if (++m_asked % 5 == 0 && window.cmdCopy->isEnabled()) {
        window.cmdCopy->click();
        const auto rows = QGuiApplication::clipboard()->text().count(QLatin1Char('\n')) - 1;
        const QString told = window.lblLeft(conditions - 1)->text();
        if (told.section(' ', 1, 1).toLongLong() != rows)
            return QString("frmFindValue %1 and copies %2 rows").arg(told).arg(rows);
    }
    TDBGrid &grid = *window.tdbFound;
    if (!grid.isVisible()) return {};
    if (!isAsked) return grid.RowCount() > 0 ? "frmFindValue shows grades without a question" : QString();
    QHash<QStringList, int> places;
    for (int row = 0; row < grid.RowCount(); ++row)
        places[{grid.CellText(row, 0), grid.CellText(row, 1), grid.CellText(row, 2)}] = row;
    const bool anyText =
        !isEmpty(window.txtStandard) || !isEmpty(window.txtGroup) || !isEmpty(window.txtProductForm);
    for (const Grades::Grade &grade : Grades::find(*modDBase::dbMain(), {})) {
        const int row = places.value({grade.standard, grade.name, grade.number}, -1);
        bool isFound = true;
        int column = 4;
        for (int i = 0; i < conditions; ++i, ++column) {
            const Property &property = all[window.cboProperty(i)->currentIndex()];
            QVector<ValueCell> cells =
                values(grade)
                    ->at(property, *TypedTexts::temperature(window.txtTemperature(i)->text()),
                         thicknessIn(window.txtThickness(i)))
                    .cells;
            cells.removeIf([&](const ValueCell &cell) {
                return !isWithin(cell, window.txtLeast(i), window.txtGreatest(i));
            });
            isFound = isFound && !cells.isEmpty();
            if (row < 0) continue;
            if (grid.Columns(column).Caption().contains("\nBand")) ++column;
            const QString shown = grid.CellText(row, column);
            if (std::none_of(cells.begin(), cells.end(),
                             [&](const ValueCell &cell) { return cell.text == shown; }))
                return QString("frmFindValue shows '%1' of %2 in %3, which it has not within the limits")
                    .arg(shown, property.label, grade.name);
        }
        if (isFound != (row >= 0) && !(isFound && anyText))
            return "frmFindValue " + QString(isFound ? "misses " : "finds ") + grade.name + ", " +
                   grade.standard;
    }
    return {};
}

QString WorkbenchCheck::faultIn(const frmValueSheet &window) {
    if (!window.tdbSheet->isVisible()) return {};
    const TDBGrid &grid = *window.tdbSheet;
    const bool isWrong = !number(window.txtFrom) || !number(window.txtTo) || !number(window.txtStep);
    if (isWrong && (window.lblTyped->text().isEmpty() || grid.RowCount() > 0))
        return "frmValueSheet does not tell what is wrong with its boxes";
    if (grid.RowCount() == 0) return {};
    const auto grade =
        values(Grades::of(*mdiVelmar::instance().colMaterials.Item(window.cboGrade->currentIndex() + 1)));
    QVector<ValueColumn> columns = ValueSheets::columns(*grade, Properties::all(*modDBase::dbMain()));
    for (qsizetype i = columns.size() - 1; i >= 0; --i)
        if (window.lstColumns->lstColumns->item(static_cast<int>(i))->checkState() != Qt::Checked)
            columns.remove(i);
    const auto temperatures =
        ValueSheets::temperatures(window.txtFrom->text(), window.txtTo->text(), window.txtStep->text());
    if (grid.RowCount() != temperatures->size() || grid.ColumnCount() != columns.size() + 1)
        return "frmValueSheet has not the rows and columns that are asked for";
    const int step = std::max(1, grid.RowCount() / 10);
    for (int row = 0; row < grid.RowCount(); row += step)
        for (int i = 0; i < columns.size(); ++i)
            if (const QString fault =
                    difference(grid, row, i + 1, grade->cell(columns[i], (*temperatures)[row]).text);
                !fault.isEmpty())
                return fault;
    return {};
}

QString WorkbenchCheck::faultIn(const frmCard &window) {
    if (!window.txtCard->isVisible()) return {};
    if ((isNone(window.txtPoisson) && window.lblPoisson->text().isEmpty()) ||
        (isNone(window.txtDensity) && window.lblDensity->text().isEmpty()))
        return "frmCard does not tell what is wrong with its boxes";
    const QString title = window.cboGrade->currentText().section("   ", 0, 0);
    return window.txtCard->toPlainText().contains("Grade: " + title)
               ? QString()
               : "frmCard shows not the card of " + title;
}

QString WorkbenchCheck::fileFault(const QString &folder) {
    for (const QFileInfo &info : QDir(folder).entryInfoList(QDir::Files)) {
        QFile file(info.filePath());
        const bool isOpen = file.open(QIODevice::ReadOnly);
        const bool isGood = isOpen && info.baseName() == "saved" && isWhole(info.fileName(), file.readAll());
        file.remove();
        if (!isGood) return info.fileName() + " is no whole file";
    }
    return {};
}
