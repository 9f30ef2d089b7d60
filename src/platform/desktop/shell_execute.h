// Opening documents as a double click on them in the desktop would.
#pragma once

#include <QStringList>

class QWidget;

/// Above 32 is success.
enum ShellResult {
    ShellFileNotFound = 2,
    ShellPathNotFound = 3,
    ShellAccessDenied = 5,
    ShellNoAssociation = 31,
    ShellStarted = 33
};

/// Opens a file with the application that is associated with its type.
int ShellExecute(const QString &file);

/// Lets the user choose an application for the file, in a modal window above `owner`.
void ShellOpenAs(const QString &file, QWidget *owner = nullptr);

/// While one exists no application is started: a test reads what would have been.
class ShellSeam {
public:
    ShellSeam();
    ~ShellSeam();
    ShellSeam(const ShellSeam &) = delete;
    ShellSeam &operator=(const ShellSeam &) = delete;

    /// What ShellExecute answers.
    int result = ShellStarted;
    QStringList opened;
    QStringList openedAs;
};
