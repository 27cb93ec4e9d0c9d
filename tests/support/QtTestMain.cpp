#include <QApplication>

#include "platform/Fonts.h"
#include "platform/QtText.h"
#include "tests/support/Places.h"
#include "tests/support/TestStart.h"

int main(int argc, char** argv) {
    // Tests do not open windows on a real screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    QApplication application(argc, argv);
    // Without a face every letter would be a box of one width.
    if (onWindows) zg::useFontsBeside(zg::filePath(QCoreApplication::applicationDirPath()));
    return startTests(argc, argv);
}
