// The tool tips of all windows, taken away and brought back. Each window has its own texts; those of the tool
// bar are here.
#pragma once

namespace modToolTips {

/// The tool bar's texts are copied from its buttons, so this runs before a material gives some of them
/// another text.
void InitToolTips();

/// Works on the tool bar and on every window that has an operation SetToolTips.
void SetToolTips(bool showTips);

} // namespace modToolTips
