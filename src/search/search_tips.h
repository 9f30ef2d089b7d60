// The tool tips of the search window.
#pragma once

#include <QString>

class QCheckBox;
struct SearchControls;

namespace SearchTips {

/// All of them, or none.
void set(SearchControls &controls, bool showTips);

/// What a click on one of chkSearch would do.
QString columnTip(const QCheckBox &box);

} // namespace SearchTips
