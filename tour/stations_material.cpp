// The pages of the opened grades.
#include <QAbstractButton>

#include "data/Material.h"
#include "material/frmMaterial2.h"
#include "platform/forms/default_instance.h"
#include "platform/forms/form.h"
#include "shell/mdiVelmar.h"
#include "tests/support/given_rows.h"
#include "tour/tour.h"

namespace {

/// The page of the first grade alone.
void page(Tour &tour, const QString &entry, const QString &name) {
    tour.menu(entry);
    tour.picture(name, *tour.form("frmMaterial2").asWidget());
}

/// No text of the sample is as long as a database may hold.
void longReferences(Tour &tour) {
    const QString sentence = QStringLiteral("Seamless steel tubes for pressure purposes, technical delivery "
                                            "conditions: non-alloy and alloy steel tubes with specified "
                                            "elevated temperature properties, alloy fine grain steel tubes, "
                                            "stainless steel tubes, and what else a standard may speak of in "
                                            "one breath.");
    const QString name = QStringLiteral("EN 10216-2:2013+A1:2019, with the additions of the maker for tubes "
                                        "of class one");
    const QDateTime date(QDate(2021, 3, 17), QTime(0, 0));
    auto material = std::make_shared<Material>();
    material->SetProperties(givenRows({"matID", "name", "numbr", "description", "groups", "revision_date"},
                                      {{30000, name, "1.4401", sentence, "8.1", date}}),
                            givenRows({"stID", "standard", "description", "revision_date", "otherElem"},
                                      {{1, name, sentence, date, false}}));
    auto *window = NewForm<frmMaterial2>();
    window->SetMaterial(material);
    ++mdiVelmar::instance().iMaterialsOpen;
    window->Show();
    window->ShowTable("Ref");
    tour.picture("references-long", *window);
    window->Unload();
    tour.form("frmMaterial2").SetFocus();
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
    longReferences(tour);
}
