// A box for one number.
#pragma once

#include <QString>

class QLineEdit;

/// As wide as the longest number that is understood.
QLineEdit *numberBox(const QString &name, const QString &accessibleName);
