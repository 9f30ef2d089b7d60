// Where a table stands in the View menu.
#pragma once

#include <QString>

/// As mdiVelmar::UpdateMenusAndButtons takes it.
struct MenuPlace {
    QString group;
    int index = 0;
};

/// The references' place for an unknown key.
MenuPlace menuPlaceOf(const QString &key);
