#include "platform/QtHost.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

TEST(QtHost, FiltersKeepTheirPatternsAndLoseStrayBlanks) {
    const QStringList filters = nameFilters("Frequency File (*.frq) | *.frq; |All Files (*.*) | *.*");
    ASSERT_EQ(filters.size(), 2);
    EXPECT_EQ(filters[0], "Frequency File (*.frq)");
    EXPECT_EQ(filters[1], "All Files (*)");
}

TEST(QtHost, AFilterMayHaveSeveralPatterns) {
    EXPECT_EQ(nameFilters("JPEG (*.JPG,*.JPEG) | *.jpg; *.jpeg; |").value(0), "JPEG (*.jpg *.jpeg)");
}

TEST(QtHost, PumpingServesTimersAndReturnsAfterItsTime) {
    QtHost host;
    bool fired = false;
    QTimer::singleShot(1, [&fired] { fired = true; });
    const std::int64_t before = host.tickCount();
    while (host.tickCount() - before < 30) host.pumpEvents(10);
    EXPECT_TRUE(fired);
}

TEST(QtHost, ASavedFileGetsTheSuffixOfItsFilterUnlessItHasOne) {
    const TempDirectory directory;
    QtHost host;
    FilePick pick;
    pick.filter = "Bitmap Files (*.bmp) | *.bmp;";
    pick.directory = directory.path();
    for (const auto& [typedName, saved] : {std::pair{"page", "page.bmp"}, {"page.dib", "page.dib"}}) {
        QTimer::singleShot(0, [name = typedName] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QLatin1String(name));
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
        EXPECT_EQ(host.pickFileToSave(pick), directory.file(saved));
    }
}

}  // namespace
}  // namespace zg
