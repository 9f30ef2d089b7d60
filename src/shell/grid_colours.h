// The colours of grids and boxes, with colours on and off.
#pragma once

class FormBase;

/// Works on the controls of a form by their names. `colour` is a colour number.
namespace GridColours {

void applyToSearch(FormBase &frmSearch, bool coloursOn, int colour);
void applyToMaterial(FormBase &frmMaterial, bool coloursOn, int colour);
void applyToChart(FormBase &frmChart, int colour);

} // namespace GridColours
