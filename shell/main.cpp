#include <QApplication>

#include "base/Paths.h"
#include "platform/Errors.h"
#include "platform/QtHost.h"
#include "platform/QtText.h"
#include "shell/FrmMain.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zephyrgraph"));
    zg::applicationDirectory = zg::filePath(QCoreApplication::applicationDirPath());
    zg::QtHost host;
    zg::frmMain window(host);
    window.show();
    return QApplication::exec();
}
