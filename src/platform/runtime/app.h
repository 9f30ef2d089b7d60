// What the program knows of itself: its folders, name and version.
#pragma once

#include <QString>

/// The one version record of the run, filled by main() and by test fixtures.
struct App {
    /// The program's folder, without a closing separator: the files that come with the program lie in it.
    QString path;
    /// The folder is the system's and serves all users: nothing is written into it, whoever runs the program.
    bool isPathShared = false;
    /// Where the program's own helpers lie. Empty means beside the program.
    QString helperPath;
    /// The program's file name without extension.
    QString exeName;
    QString title;
    int major = 0;
    int minor = 0;
    int revision = 0;
    QString legalCopyright;

    static App &current();
};
