// What a screen reader takes the platform's own windows and controls for.
#pragma once

namespace AccessibleRoles {

/// The library knows nothing of a widget's class but its own, and takes every frame for the frame of a
/// window.
void install();

} // namespace AccessibleRoles
