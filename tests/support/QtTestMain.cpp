#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    // No test opens a window on a screen that somebody looks at.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
