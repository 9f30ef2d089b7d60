// The settings of the main window: from the file into menus, bars and members, and back.
#pragma once

class mdiVelmar;

namespace MainSettings {

/// A file that is missing or short leaves the start values. Raises 13 for a back colour that is no number.
void read(mdiVelmar &window);
void write(const mdiVelmar &window);

} // namespace MainSettings
