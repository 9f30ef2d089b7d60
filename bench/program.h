// The program as a user has it before him: its real windows, off screen, driven by their controls.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include "platform/forms/modal_seam.h"

class frmMaterial2;
class frmSearch;

namespace Bench {

/// Handles what is posted, painting included.
void paint();

/// The folders of one run. No file of the person who measures is read or written.
class Folders {
public:
    explicit Folders(const QString &database);
    ~Folders();

    QString output(const QString &name) const { return m_folder.filePath(name); }
    QString user() const { return m_user.path(); }

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_user;
    QByteArray m_userBefore;
};

/// From its making to its end the main window is open over the database, with the search in front.
class Program {
public:
    explicit Program(const QString &database);
    ~Program();

    frmSearch &search() const;
    /// By the search window: the list's current row and its button.
    void select(const QVector<int> &matIDs) const;
    /// All selected grades, each in a window, painted.
    void showSelected() const;
    QVector<frmMaterial2 *> windows() const;
    /// By the menu.
    void command(const QString &entry) const;
    QString output(const QString &name) const { return m_folders.output(name); }
    ModalSeam &boxes() { return m_boxes; }

private:
    ModalSeam m_boxes;
    Folders m_folders;
};

/// The grades of most rows among the first ones, the richest first.
QVector<int> richestGrades(const QString &database, int count);

} // namespace Bench
