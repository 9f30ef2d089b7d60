// The program in a folder of its own, with its main window and a database.
#pragma once

#include <functional>
#include <memory>

#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/support/pinned_settings.h"

class frmMaterial2;
class Material;

/// From its making to its end the main window is loaded over a database, with fixed dates, and no file of the
/// person who runs the tests is read or written.
class TestProgram {
public:
    /// What the program finds when it starts.
    struct Given {
        QSize screen{1280, 1024};
        /// Of the screen; all of it where empty.
        QRect freeArea;
        bool pmaIndex = true;
        /// The lines of Settings.vlp; without any there is no such file.
        QStringList settings;
        /// Makes the database file.
        std::function<void(const QString &path)> putDatabase = putSample;
        char16_t decimalSign = u'.';
        char16_t groupSign = u',';
    };

    static void putSample(const QString &path);

    TestProgram()
        : TestProgram(Given()) {}
    explicit TestProgram(const Given &given);
    explicit TestProgram(const std::function<void(const QString &path)> &putDatabase,
                         char16_t decimalSign = u'.', char16_t groupSign = u',');
    ~TestProgram();
    TestProgram(const TestProgram &) = delete;
    TestProgram &operator=(const TestProgram &) = delete;

    /// The program's folder.
    QString folder() const { return m_folder.path(); }
    /// The user's folder, with a closing separator.
    QString userFolder() const;
    /// The grade of that matID, as the search would select it.
    std::shared_ptr<Material> material(int matID) const;
    /// A window that shows the grade, visible.
    frmMaterial2 &open(const std::shared_ptr<Material> &material) const;
    /// Ends the run, as the Exit command does, and starts it again with the same files.
    void restart();

private:
    static void end();

    PinnedSettings m_settings;
    QTemporaryDir m_folder;
    QTemporaryDir m_appData;
    QByteArray m_appDataBefore;
};
