// Grades found by value, their diagram, and material cards.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTabWidget>

#include "platform/forms/form.h"
#include "platform/forms/scatter_plot.h"
#include "platform/forms/screen.h"
#include "platform/forms/tdb_grid.h"
#include "tour/tour.h"

namespace {

Form &window(Tour &tour, const QString &name, const QString &entry) {
    tour.menu(entry);
    Form &form = *tour.form(name).as<Form>();
    tour.settle();
    return form;
}

void choose(Tour &tour, FormBase &form, const QString &list, int index) {
    tour.control<QComboBox>(form, list).setCurrentIndex(index);
    tour.settle();
}

void typeCondition(Tour &tour, FormBase &form, int condition, const QStringList &texts) {
    const char *const boxes[] = {"txtTemperature", "txtThickness", "txtLeast", "txtGreatest"};
    for (int i = 0; i < texts.size(); ++i)
        tour.retype(tour.control<QLineEdit>(form, QStringLiteral("%1(%2)").arg(boxes[i]).arg(condition)),
                    texts[i]);
}

} // namespace

void findByValue(Tour &tour) {
    Form &form = window(tour, "frmFindValue", "mnuToolsElem(1)");
    tour.picture("find-by-value-empty", form);
    typeCondition(tour, form, 0, {"300", "40", "150"});
    tour.picture("find-by-value", form);
    tour.retype(tour.control<QLineEdit>(form, "txtLeast(0)"), "15o");
    tour.picture("find-by-value-fault", form);
    typeCondition(tour, form, 0, {"300", "40", "150"});
    for (int i = 1; i < 5; ++i) {
        tour.click(form, "cmdAdd");
        auto &list = tour.control<QComboBox>(form, QStringLiteral("cboProperty(%1)").arg(i));
        list.setCurrentIndex(list.count() - 1 - i);
    }
    tour.picture("find-by-value-five-conditions", form);
    form.resize(800, 600);
    tour.picture("find-by-value-800x600", form);
    for (int i = 4; i > 0; --i)
        tour.click(form, QStringLiteral("cmdRemove(%1)").arg(i));
    auto &grid = tour.control<TDBGrid>(form, "tdbFound");
    Q_EMIT grid.HeadClick(1);
    tour.picture("find-by-value-by-name", form);
    tour.control<QTabWidget>(form, "tabPages").setCurrentIndex(1);
    auto &plot = tour.control<ScatterPlot>(form, "plot");
    plot.setFocus();
    tour.press(plot, Qt::Key_Home);
    tour.press(plot, Qt::Key_Right);
    tour.picture("find-by-value-diagram", form);
    form.Unload();
    tour.settle();
}

void makeCards(Tour &tour) {
    Form &form = window(tour, "frmCard", "mnuToolsElem(4)");
    tour.picture("material-card", form);
    tour.type(tour.control<QLineEdit>(form, "txtPoisson"), "0.3");
    tour.type(tour.control<QLineEdit>(form, "txtDensity"), "7,85");
    choose(tour, form, "cboYield", 1);
    tour.picture("material-card-faults", form);
    tour.retype(tour.control<QLineEdit>(form, "txtDensity"), "7850");
    choose(tour, form, "cboBand", 1);
    choose(tour, form, "cboFormat", 1);
    choose(tour, form, "cboUnits", 1);
    form.resize(800, 600);
    tour.picture("material-card-mapdl", form);
    form.Unload();
    tour.settle();
}

void makeCardOfNothing(Tour &tour) {
    Form &form = window(tour, "frmCard", "mnuToolsElem(4)");
    tour.picture("material-card-empty", form);
    form.Unload();
    tour.settle();
}
