// Writes a picture of every form, as it looks on this machine, into a directory.

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <cstdio>
#include <cstring>

#include "tests/forms/Forms.h"
#include "tests/forms/Looks.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: zg_form_pictures DIRECTORY [large] [dark]\n");
        return 2;
    }
    for (int i = 2; i < argc; ++i) {
        if (std::strcmp(argv[i], "large") == 0) zg::enlargeFonts(1.5);
        if (std::strcmp(argv[i], "dark") == 0) zg::takeDarkTheme();
    }
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    if (!directory.exists() && !QDir().mkpath(directory.path())) return 1;
    for (const zg::FormRow& row : zg::forms()) {
        zg::FormWorld world;
        const auto form = zg::open(row, world);
        zg::forEachPage(*form, [&](const std::string& page) {
            QString name = QString::fromStdString(zg::rowName(row) + (page.empty() ? "" : "_" + page));
            name.remove(QLatin1Char('&'));
            if (!form->grab().save(directory.filePath(name + QStringLiteral(".png")))) std::exit(1);
        });
    }
    return 0;
}
