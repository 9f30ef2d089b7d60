#include "shell/grid_colours.h"

#include <QWidget>

#include "platform/forms/colours.h"
#include "platform/forms/form_base.h"
#include "platform/forms/placement.h"
#include "platform/forms/tdb_grid.h"

namespace GridColours {

namespace {

void colourBox(FormBase &form, const QString &name, int colour) {
    if (auto *box = form.asWidget()->findChild<QWidget *>(name)) setBackColor(box, colour);
}

void colourBoxes(FormBase &form, const QString &array, int last, int colour) {
    for (int i = 0; i <= last; ++i)
        colourBox(form, elementName(array, i), colour);
}

void alternate(FormBase &form, const QString &name, bool on) {
    if (auto *grid = form.asWidget()->findChild<TDBGrid *>(name)) grid->setAlternatingRowStyle(on);
}

} // namespace

void applyToSearch(FormBase &frmSearch, bool coloursOn, int colour) {
    colourBoxes(frmSearch, "txtSearch", 6, colour);
    alternate(frmSearch, "tdbMaterials", coloursOn);
    alternate(frmSearch, "tdbSelected", coloursOn);
}

void applyToMaterial(FormBase &frmMaterial, bool coloursOn, int colour) {
    colourBox(frmMaterial, "txtDesignTemp", colour);
    colourBox(frmMaterial, "txtNotes", colour);
    colourBoxes(frmMaterial, "txtMainData", 8, colour);
    colourBox(frmMaterial, "framChart", colour);
    alternate(frmMaterial, "tdbBoundTable", coloursOn);
    alternate(frmMaterial, "tdbTable", coloursOn);
    alternate(frmMaterial, "tdbDesign", coloursOn);
    colourBox(frmMaterial, "txtNoData", colour);
}

void applyToChart(FormBase &frmChart, int colour) {
    colourBox(frmChart, "framChart", colour);
}

} // namespace GridColours
