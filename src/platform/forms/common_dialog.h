// The dialog for choosing a file to open or to save.
#pragma once

#include <QString>
#include <QStringList>

/// Set the members, show, read FileName.
class CommonDialog {
public:
    QString DialogTitle;
    /// Where the dialog opens. A drive's root such as c:\ is the user's documents folder on a system without
    /// drive letters, here and in FileName.
    QString InitDir;
    /// The name offered, then the path chosen.
    QString FileName;
    /// Pairs of text and pattern such as "Text Format (*.txt)|*.txt".
    QString Filter;
    /// Put behind a chosen name that has no extension.
    QString DefaultExt;
    /// Of the help; see HelpContext.
    QString Topic;
    /// Cancel raises 32755; otherwise it leaves FileName as it was.
    bool CancelError = false;

    void ShowOpen() { show(false); }
    void ShowSave() { show(true); }

    /// `path` as this system writes it: see InitDir.
    static QString localPath(const QString &path);
    /// The filter as one Qt name filter per pair.
    static QStringList nameFilters(const QString &filter);

private:
    void show(bool save);
    QString ask(bool save) const;
};
