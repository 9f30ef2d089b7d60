// The main window over a database made for one test.
#pragma once

#include <memory>

#include <QStringList>
#include <QTemporaryDir>

#include "tests/support/pinned_settings.h"

class frmMaterial2;
class Material;

/// From its making to its end the main window is loaded over a database with all tables, the grades 1 to 10
/// of one standard, and what was inserted.
class SmallProgram {
public:
    /// What follows "insert into" in a statement, such as "Rm values (1, 20, -1, 1, '410')".
    explicit SmallProgram(const QStringList &inserts, char16_t decimalSign = u',', char16_t groupSign = u'.');
    ~SmallProgram();
    SmallProgram(const SmallProgram &) = delete;
    SmallProgram &operator=(const SmallProgram &) = delete;

    /// A window with the caption "Grade <matID>", visible; its material is the current one.
    frmMaterial2 &open(int matID) const;

private:
    PinnedSettings m_settings;
    QTemporaryDir m_folder;
};
