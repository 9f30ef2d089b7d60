// main() of the test programs that need no window.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "tests/support/qt_warnings.h"

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    onQtWarning([](const QString &message) { ADD_FAILURE() << "Qt warns: " << qPrintable(message); });
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
