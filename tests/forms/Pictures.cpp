// Writes a picture of every form, as displayed on this machine, into a directory.

#include <QApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QTest>
#include <QTreeView>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/Paths.h"
#include "platform/Fonts.h"
#include "platform/QtText.h"
#include "tests/forms/Forms.h"
#include "tests/forms/Looks.h"

namespace {

[[noreturn]] void fail(const QString& why) {
    std::fprintf(stderr, "zg_form_pictures: %s\n", qPrintable(why));
    std::exit(1);
}

/// A tree shows the scratch directory as if it were the whole disk.
void showOnly(const QString& scratch, QTreeView& tree) {
    auto* model = dynamic_cast<QFileSystemModel*>(tree.model());
    const QModelIndex current = tree.currentIndex();
    const QDir inside(model->filePath(current));
    const auto expected = static_cast<int>(inside.entryList(QDir::AllDirs | QDir::NoDotAndDotDot).size());
    tree.setRootIndex(model->index(scratch));
    if (!QTest::qWaitFor([&] { return model->rowCount(current) == expected; }))
        fail(QStringLiteral("the tree does not show the %1 directories of %2")
                 .arg(expected)
                 .arg(inside.path()));
    tree.scrollTo(current);
    QCoreApplication::processEvents();
}

/// The guide must not show this scratch directory.
void hideScratch(QWidget& form, const zg::FormWorld& world) {
    const QString scratch = QString::fromStdString(world.directory.path());
    if (auto* tree = form.findChild<QTreeView*>(QStringLiteral("Dir1"))) showOnly(scratch, *tree);
    const QString instead =
        QDir(scratch + QStringLiteral("/data")).exists() ? QString() : QStringLiteral("/data");
    for (auto* box : form.findChildren<QLineEdit*>())
        if (box->text().contains(scratch)) box->setText(box->text().replace(scratch, instead));
    for (auto* list : form.findChildren<QListWidget*>())
        for (int row = 0; row < list->count(); ++row)
            list->item(row)->setText(list->item(row)->text().replace(scratch, instead));
    for (auto* label : form.findChildren<QLabel*>())
        if (label->text().contains(scratch)) label->setText(label->text().replace(scratch, instead));
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (zg::onWindows) zg::useFontsBeside(zg::filePath(QCoreApplication::applicationDirPath()));
    if (argc < 2) {
        std::fprintf(stderr, "usage: zg_form_pictures DIRECTORY [large] [dark]\n");
        return 2;
    }
    for (int i = 2; i < argc; ++i) {
        if (std::strcmp(argv[i], "large") == 0) zg::enlargeFonts(1.5);
        if (std::strcmp(argv[i], "dark") == 0) zg::takeDarkTheme();
    }
    const QDir directory(QString::fromLocal8Bit(argv[1]));
    if (!directory.exists() && !QDir().mkpath(directory.path()))
        fail(QStringLiteral("%1 cannot be made").arg(directory.path()));
    for (const zg::FormRow& row : zg::forms()) {
        zg::FormWorld world;
        const auto form = zg::open(row, world);
        hideScratch(*form, world);
        zg::forEachPage(*form, [&](const std::string& page) {
            QString name = QString::fromStdString(zg::rowName(row) + (page.empty() ? "" : "_" + page));
            name.remove(QLatin1Char('&'));
            const QString path = directory.filePath(name + QStringLiteral(".png"));
            if (!form->grab().save(path)) fail(QStringLiteral("%1 cannot be written").arg(path));
        });
    }
    return 0;
}
