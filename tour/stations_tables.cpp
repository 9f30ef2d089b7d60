// Every table of a rich grade, graphs, and design values.
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QTableView>
#include <QToolTip>

#include "platform/forms/form.h"
#include "platform/forms/tdb_grid.h"
#include "tour/tour.h"

namespace {

void tables(Tour &tour, FormBase &window) {
    const std::pair<const char *, const char *> pages[] = {{"mnuViewMechElem(0)", "table-room-temperature"},
                                                           {"mnuViewMechElem(1)", "table-Rp02"},
                                                           {"mnuViewMechElem(3)", "table-creep"},
                                                           {"mnuViewElem(3)", "table-impact"},
                                                           {"mnuViewPhysElem(0)", "table-modulus"},
                                                           {"mnuViewPhysElem(1)", "table-expansion"},
                                                           {"mnuViewPhysElem(2)", "table-conductivity"},
                                                           {"mnuViewPhysElem(3)", "table-heat-capacity"},
                                                           {"mnuViewPhysElem(4)", "table-resistivity"}};
    for (const auto &[entry, name] : pages) {
        tour.menu(entry);
        tour.picture(name, *window.asWidget());
    }
}

/// A column that the database made too narrow for its values, with the tips that tell them.
void narrowColumn(Tour &tour) {
    FormBase &window = tour.windowOf("X2CrNi18-9");
    tour.menu("mnuViewMechElem(0)");
    tour.picture("table-with-a-narrow-column", *window.asWidget());
    auto *view = tour.control<TDBGrid>(window, "tdbTable").findChild<QTableView *>();
    const QPoint cell(5, 5);
    for (QWidget *place : {view->viewport(), view->horizontalHeader()->viewport()}) {
        QHelpEvent rest(QEvent::ToolTip, cell, place->mapToGlobal(cell));
        QApplication::sendEvent(place, &rest);
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (widget->inherits("QTipLabel") && widget->isVisible())
                tour.picture(place == view->viewport() ? "tip-of-a-cell" : "tip-of-a-heading", *widget);
    }
    QToolTip::hideText();
    tour.menu("mnuViewElem(0)");
}

/// What the first grade has no values for.
void tablesOfStainlessSteel(Tour &tour, FormBase &window) {
    tour.menu("mnuViewMechElem(0)");
    tour.picture("table-of-twelve-columns", *window.asWidget());
    tour.menu("mnuViewMechElem(1)");
    for (int i : {1, 2}) {
        tour.click(window, QStringLiteral("optMechProp(%1)").arg(i));
        tour.picture(i == 1 ? "table-Rp10" : "table-Rm", *window.asWidget());
    }
}

void graphs(Tour &tour, FormBase &window) {
    tour.menu("mnuViewMechElem(1)");
    tour.click(window, "CommandShowGraph");
    tour.picture("graph-bands", *window.asWidget());
    tour.boxes().driveForm([&](Form &form) {
        tour.picture("graph-enlarged", form);
        form.Unload();
    });
    tour.click(window, "cmdPrintSave(2)");
    tour.click(window, "CommandShowTable");

    tour.menu("mnuViewMechElem(3)");
    tour.click(window, "cmdUnBoundGraph");
    tour.picture("graph-creep", *window.asWidget());
    tour.click(window, "cmdUnBoundTable");
}

} // namespace

void showTablesAndGraphs(Tour &tour) {
    narrowColumn(tour);
    tablesOfStainlessSteel(tour, tour.windowOf("X2CrNiMo17-12-2"));
    FormBase &window = tour.windowOf("P265GH");
    tables(tour, window);
    graphs(tour, window);
}

void designValues(Tour &tour) {
    tour.menu("mnuViewElem(6)");
    FormBase &window = tour.windowOf("P265GH");
    auto &box = tour.control<QLineEdit>(window, "txtDesignTemp");
    tour.type(box, "425");
    tour.picture("design-values", *window.asWidget());
    tour.menu("mnuWindowElem(1)");
    tour.picture("design-values-of-two");
    tour.retype(box, "-10");
    tour.picture("design-values-below", *window.asWidget());
    // no mean expansion is given at 20 °C, the lower neighbour
    tour.retype(box, "60");
    tour.control<TDBGrid>(window, "tdbDesign").setRow(16);
    tour.picture("design-values-missing", *window.asWidget());
    tour.retype(box, "480,5");
}
