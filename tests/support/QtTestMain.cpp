#include <QApplication>

#include "tests/support/TestStart.h"

int main(int argc, char** argv) {
    // Tests do not open windows on a real screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    QApplication application(argc, argv);
    return startTests(argc, argv);
}
