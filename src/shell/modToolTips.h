// The tool tips of all windows in one place, so that they can be taken away and brought back.
#pragma once

#include <QString>

class frmMaterial2;
class QCheckBox;

namespace modToolTips {

/// Fills the tables. The tool bar's texts are copied from its buttons, so this runs before a material gives
/// some of them another text.
void InitToolTips();

/// Works on the search window, the tool bar and every material window.
void SetToolTips(bool showTips);

/// Whether there are tips at all follows mdiVelmar's bToolTips.
void SetMaterialToolTips(frmMaterial2 &frm);

/// What a click on one of chkSearch would do.
QString columnTip(const QCheckBox &box);

} // namespace modToolTips
