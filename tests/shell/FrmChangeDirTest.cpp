#include "shell/FrmChangeDir.h"

#include <gtest/gtest.h>

#include <QStorageInfo>
#include <QTest>
#include <filesystem>

#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class ChangeDir : public ::testing::Test {
 protected:
    void open(const std::string& workDir = "neither") {
        form_ = std::make_unique<frmChangeDir>(host_, chosen_, workDir);
        form_->show();
    }

    QString current() { return form_->findChild<QLabel*>("lblCurDir")->text(); }
    QComboBox* drives() { return form_->findChild<QComboBox*>("Drive1"); }
    QTreeView* tree() { return form_->findChild<QTreeView*>("Dir1"); }
    QFileSystemModel* model() { return qobject_cast<QFileSystemModel*>(tree()->model()); }
    void press(const char* name) {
        QTest::mouseClick(form_->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    QString path() const { return QString::fromStdString(directory_.path()); }

    TempDirectory directory_;
    TestHost host_;
    std::string chosen_ = directory_.path();
    std::unique_ptr<frmChangeDir> form_;
};

TEST_F(ChangeDir, StartsAtTheDirectoryOfTheCaller) {
    open("/");
    EXPECT_EQ(form_->windowTitle(), "Change Directory");
    EXPECT_EQ(current(), path());
    EXPECT_EQ(model()->filePath(tree()->currentIndex()), path());
    press("cmdOK");
    EXPECT_EQ(chosen_, directory_.path() + "/");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(ChangeDir, ElseAtTheWorkingDirectoryElseAtTheRoot) {
    chosen_ = "no such place";
    open(directory_.path());
    EXPECT_EQ(current(), path());
    open("neither");
    EXPECT_EQ(current(), "/");
    chosen_ = directory_.write("file", "");
    open("neither");
    EXPECT_EQ(current(), "/") << "a file is no directory";
}

TEST_F(ChangeDir, TheDriveBoxShowsTheDriveOfTheDirectory) {
    open();
    EXPECT_EQ(drives()->currentText(), QStorageInfo(path()).rootPath());
}

TEST_F(ChangeDir, TheTreeChangesTheChoice) {
    std::filesystem::create_directory(directory_.file("below"));
    open();
    tree()->setCurrentIndex(model()->index(path() + "/below"));
    EXPECT_EQ(current(), path() + "/below");
    press("cmdOK");
    EXPECT_EQ(chosen_, directory_.file("below") + "/");
}

TEST_F(ChangeDir, CancelKeepsWhereItStarted) {
    std::filesystem::create_directory(directory_.file("below"));
    open();
    tree()->setCurrentIndex(model()->index(path() + "/below"));
    press("cmdCancel");
    EXPECT_EQ(chosen_, directory_.path() + "/");
}

TEST_F(ChangeDir, EnterOnCancelCancels) {
    std::filesystem::create_directory(directory_.file("below"));
    open();
    tree()->setCurrentIndex(model()->index(path() + "/below"));
    auto* cancel = form_->findChild<QPushButton*>("cmdCancel");
    form_->activateWindow();
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_EQ(chosen_, directory_.path() + "/");
}

TEST_F(ChangeDir, ATreeWithoutACurrentRowLeavesTheChoice) {
    open();
    tree()->setCurrentIndex(QModelIndex());
    EXPECT_EQ(current(), path());
}

TEST_F(ChangeDir, ADriveMovesTheTreeUnlessItIsNotReady) {
    open();
    drives()->addItem(path() + "/gone");
    drives()->addItem("/");
    drives()->setCurrentText(path() + "/gone");
    emit drives()->activated(drives()->currentIndex());
    EXPECT_EQ(current(), path());
    drives()->setCurrentText("/");
    emit drives()->activated(drives()->currentIndex());
    EXPECT_EQ(current(), "/");
    EXPECT_EQ(model()->filePath(tree()->currentIndex()), "/");
}

}  // namespace
}  // namespace zg
