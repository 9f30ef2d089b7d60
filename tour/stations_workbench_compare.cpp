// The selected grades beside each other, and the values of one over temperature.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>

#include "tour/tour.h"

namespace {

constexpr QSize SmallScreen(800, 600);

void saveValues(Tour &tour, FormBase &form, const QString &name) {
    const QString file = tour.folder() + '/' + name;
    tour.boxes().chooseFile(file);
    tour.click(form, "cmdSave");
    if (file.endsWith(QLatin1String(".pdf"))) Tour::pagePictures(file);
}

void pictureSmall(Tour &tour, const QString &name, FormBase &form) {
    const QRect before = form.asWidget()->geometry();
    form.asWidget()->resize(SmallScreen.width() - 6, SmallScreen.height() - 28);
    tour.picture(name, *form.asWidget());
    form.asWidget()->setGeometry(before);
}

} // namespace

void compareGrades(Tour &tour) {
    tour.menu("mnuToolsElem(0)");
    FormBase &form = tour.form("frmCompare");
    QWidget &window = *form.asWidget();
    auto &temperature = tour.control<QLineEdit>(form, "txtTemperature");
    auto &thickness = tour.control<QLineEdit>(form, "txtThickness");
    auto &pages = tour.control<QTabWidget>(form, "tabPages");
    tour.picture("compare-empty", window);
    tour.type(temperature, "310");
    tour.picture("compare-bands", window);
    tour.type(thickness, "40");
    tour.picture("compare", window);
    pictureSmall(tour, "compare-800x600", form);
    for (const char *ending : {".pdf", ".rtf", ".txt", ".xlsx"})
        saveValues(tour, form, QLatin1String("comparison") + QLatin1String(ending));
    tour.type(tour.control<QLineEdit>(form, "txtFilter"), "therm");
    tour.picture("compare-filter", window);
    tour.retype(temperature, "3x");
    tour.picture("compare-fault", window);
    tour.retype(temperature, "310");

    pages.setCurrentIndex(1);
    tour.picture("compare-graph", window);
    pictureSmall(tour, "compare-graph-800x600", form);
    tour.control<QComboBox>(form, "cboProperty").setCurrentIndex(1);
    tour.picture("compare-graph-without", window);
    pages.setCurrentIndex(2);
    tour.picture("compare-composition", window);
    pictureSmall(tour, "compare-composition-800x600", form);
    form.Unload();
}

void valuesOverTemperature(Tour &tour) {
    tour.menu("mnuToolsElem(3)");
    FormBase &form = tour.form("frmValueSheet");
    QWidget &window = *form.asWidget();
    tour.retype(tour.control<QLineEdit>(form, "txtFrom"), "0");
    tour.retype(tour.control<QLineEdit>(form, "txtStep"), "25");
    tour.picture("value-sheet", window);
    saveValues(tour, form, "values-over-temperature.pdf");
    pictureSmall(tour, "value-sheet-800x600", form);
    auto &columns = tour.control<QListWidget>(form, "lstColumns");
    tour.click(form, "cmdNone");
    tour.picture("value-sheet-no-column", window);
    for (const int row : {0, 1, 2}) {
        columns.setCurrentRow(row);
        tour.press(columns, Qt::Key_Space);
    }
    tour.picture("value-sheet-columns", window);
    tour.retype(tour.control<QLineEdit>(form, "txtStep"), "0");
    tour.picture("value-sheet-fault", window);
    form.Unload();
}
