// A test of the whole program: its main window and its search window over the sample database.
#pragma once

#include <gtest/gtest.h>

#include <optional>

#include <QTest>

#include "tests/support/program.h"

class frmSearch;
class mdiVelmar;

/// A folder of its own for the program and one for the user, fixed dates and numbers, and no box that waits
/// for a person; everything is unloaded at the end.
class ProgramFixture : public ::testing::Test {
protected:
    /// Without a call the program starts at the first touch of one of its windows.
    void start(const TestProgram::Given &given = {}) { m_program.emplace(given); }
    /// Ends the run and starts it again with the same files.
    void restart() { program().restart(); }

    TestProgram &program();
    mdiVelmar &main();
    frmSearch &search();

    /// As a person would, key by key.
    static void type(QWidget *box, const QString &text);
    static void press(QWidget *control, Qt::Key key) { QTest::keyClick(control, key); }
    static void click(QWidget *control) { QTest::mouseClick(control, Qt::LeftButton); }
    /// Lets a control of the program go over another one.
    static void drop(const QWidget *source, QWidget *target);

private:
    std::optional<TestProgram> m_program;
};
