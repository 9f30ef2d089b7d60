// Text colours for backgrounds that the theme did not choose.
#pragma once

#include <QColor>

/// `preferred` where it stands out from `background` well enough to be read, else black or white.
QColor legibleText(const QColor &background, const QColor &preferred);
