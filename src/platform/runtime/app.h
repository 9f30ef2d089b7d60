// What the program knows of itself: its folder, name and version.
#pragma once

#include <QString>

/// The one version record of the run, filled by main() and by test fixtures.
struct App {
    /// The program's folder, without a closing separator.
    QString path;
    /// The program's file name without extension.
    QString exeName;
    QString title;
    int major = 0;
    int minor = 0;
    int revision = 0;
    QString legalCopyright;

    static App &current();
};
