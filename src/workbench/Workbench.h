// The tools beside the main window: comparing grades, finding them by value, sheets of values, material
// cards.
#pragma once

namespace Workbench {

/// Opens the window of a ToolsEntry, or brings it to the front. Another index does nothing.
void show(int index);

} // namespace Workbench
