// main() of the test programs that open windows: they are drawn off screen.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    return RUN_ALL_TESTS();
}
