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
    /// Such as ".txt". To save, it is put behind every name that does not end in it; to open, behind a name
    /// without any extension.
    QString DefaultExt;
    /// To save, the extension of the chosen filter is put behind every name that ends in that of none of
    /// them, in the place of DefaultExt.
    bool FilterExt = false;
    /// Of the help; see HelpContext.
    QString Topic;
    /// Cancel raises 32755; otherwise it leaves FileName as it was.
    bool CancelError = false;

    void ShowOpen();
    /// Asks again where the folder does not exist, and before a file is replaced that the person did not
    /// name in full.
    void ShowSave();

    /// `path` as this system writes it: see InitDir.
    static QString localPath(const QString &path);
    /// The filter as one Qt name filter per pair.
    static QStringList nameFilters(const QString &filter);
    /// `name` with `extension` (".txt") behind it, unless it ends in it already, in capitals or not.
    static QString withExtension(const QString &name, const QString &extension);

private:
    QStringList extensions() const;
    QString choose(bool save, const QString &folder, const QString &name) const;
    QString ask(bool save, const QString &folder, const QString &name) const;
    void take(const QString &chosen);
};
