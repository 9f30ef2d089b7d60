// Where the materials database is looked for, and how it is opened.
#pragma once

#include <QString>

inline const QString DatabaseFile = QStringLiteral("Velmar_PED.mdb");
inline const QString DatabasePathFile = QStringLiteral("PathSet.vlp");
inline const QString DatabasePassword = QStringLiteral("rolvek");
