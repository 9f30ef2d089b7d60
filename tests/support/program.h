// The program in a folder of its own, with its main window and a database.
#pragma once

#include <memory>

#include <QString>
#include <QTemporaryDir>

#include "tests/support/pinned_settings.h"

class frmMaterial2;
class Material;

/// From its making to its end the main window is loaded over the sample database, with a decimal point and
/// fixed dates, and no file of the person who runs the tests is read or written.
class TestProgram {
public:
    TestProgram();
    ~TestProgram();
    TestProgram(const TestProgram &) = delete;
    TestProgram &operator=(const TestProgram &) = delete;

    QString folder() const { return m_folder.path(); }
    /// The grade of that matID, as the search would select it.
    std::shared_ptr<Material> material(int matID) const;
    /// A window that shows the grade, visible.
    frmMaterial2 &open(const std::shared_ptr<Material> &material) const;

private:
    PinnedSettings m_settings;
    QTemporaryDir m_folder;
};
