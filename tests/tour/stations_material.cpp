// The pages of the opened grades.
#include <QAbstractButton>

#include "platform/forms/form.h"
#include "tests/tour/tour.h"

namespace {

/// The page of the first grade alone.
void page(Tour &tour, const QString &entry, const QString &name) {
    tour.menu(entry);
    tour.picture(name, *tour.form("frmMaterial2").asWidget());
}

} // namespace

void readMaterials(Tour &tour) {
    tour.menu("mnuFileElem(0)");
    tour.picture("cascade");
    tour.menu("mnuWindowElem(1)");
    tour.picture("tile");
    tour.menu("mnuWindowElem(0)");
    tour.form("frmMaterial2").SetFocus();

    page(tour, "mnuViewElem(1)", "composition");
    tour.click(tour.control<QAbstractButton>(tour.form("frmMaterial2"), "cmdShowNotes"));
    tour.picture("composition-with-notes", *tour.form("frmMaterial2").asWidget());
    page(tour, "mnuViewElem(5)", "additional-information");
    page(tour, "mnuViewElem(0)", "references");
}
