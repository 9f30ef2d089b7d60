// The colours of a dark desktop.
#pragma once

/// Gives the application the palette that a dark desktop theme hands to its programs.
void useDarkTheme();
