#include "shell/FrmChangeDir.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QStorageInfo>
#include <QTest>
#include <filesystem>

#include "base/Paths.h"
#include "tests/support/Places.h"
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

    /// The shown directory without the breaks of its lines.
    QString current() { return form_->findChild<QLabel*>("lblCurDir")->text().remove(QChar(0x200B)); }
    QComboBox* drives() { return form_->findChild<QComboBox*>("Drive1"); }
    QTreeView* tree() { return form_->findChild<QTreeView*>("Dir1"); }
    QFileSystemModel* model() { return qobject_cast<QFileSystemModel*>(tree()->model()); }
    void press(const char* name) {
        QTest::mouseClick(form_->findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
    }
    QString path() const { return QString::fromStdString(directory_.path()); }
    /// With "/", as the tree has its rows.
    QString row() const { return QDir::fromNativeSeparators(path()); }

    const QString root_ = onWindows ? "C:\\" : "/";

    TempDirectory directory_;
    TestHost host_;
    std::string chosen_ = directory_.path();
    std::unique_ptr<frmChangeDir> form_;
};

TEST_F(ChangeDir, StartsAtTheDirectoryOfTheCaller) {
    open(root_.toStdString());
    EXPECT_EQ(form_->windowTitle(), "Change Directory");
    EXPECT_EQ(current(), path());
    EXPECT_EQ(model()->filePath(tree()->currentIndex()), row());
    press("cmdOK");
    EXPECT_EQ(chosen_, directory_.path() + pathSeparator);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(ChangeDir, ElseAtTheWorkingDirectoryElseAtTheRoot) {
    chosen_ = "no such place";
    open(directory_.path());
    EXPECT_EQ(current(), path());
    open("neither");
    EXPECT_EQ(current(), root_);
    chosen_ = directory_.write("file", "");
    open("neither");
    EXPECT_EQ(current(), root_) << "a file is no directory";
}

TEST_F(ChangeDir, TheDriveBoxShowsTheDriveOfTheDirectory) {
    open();
    EXPECT_EQ(drives()->currentText(), QDir::toNativeSeparators(QStorageInfo(path()).rootPath()));
}

TEST_F(ChangeDir, TheTreeChangesTheChoice) {
    std::filesystem::create_directory(directory_.file("below"));
    open();
    tree()->setCurrentIndex(model()->index(row() + "/below"));
    EXPECT_EQ(current().toStdString(), directory_.file("below"));
    press("cmdOK");
    EXPECT_EQ(chosen_, directory_.file("below") + pathSeparator);
}

TEST_F(ChangeDir, CancelKeepsWhereItStarted) {
    std::filesystem::create_directory(directory_.file("below"));
    open();
    tree()->setCurrentIndex(model()->index(row() + "/below"));
    press("cmdCancel");
    EXPECT_EQ(chosen_, directory_.path() + pathSeparator);
}

TEST_F(ChangeDir, EnterOnCancelCancels) {
    std::filesystem::create_directory(directory_.file("below"));
    open();
    tree()->setCurrentIndex(model()->index(row() + "/below"));
    auto* cancel = form_->findChild<QPushButton*>("cmdCancel");
    form_->activateWindow();
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_EQ(chosen_, directory_.path() + pathSeparator);
}

TEST_F(ChangeDir, WhatIsCopiedIsThePathAlone) {
    open();
    auto* label = form_->findChild<QLabel*>("lblCurDir");
    EXPECT_EQ(label->accessibleName(), path()) << "what is read aloud has no breaks";
    QGuiApplication::clipboard()->clear();
    if (label->actions().isEmpty()) {
        EXPECT_TRUE(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        EXPECT_EQ(label->text(), path()) << "what is selected has no breaks";
        return;
    }
    EXPECT_EQ(label->actions().front()->shortcut(), QKeySequence(QKeySequence::Copy));
    label->actions().front()->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), path());
}

TEST_F(ChangeDir, ATreeWithoutACurrentRowLeavesTheChoice) {
    open();
    tree()->setCurrentIndex(QModelIndex());
    EXPECT_EQ(current(), path());
}

TEST_F(ChangeDir, ADriveMovesTheTreeUnlessItIsNotReady) {
    open();
    drives()->addItem(path() + "/gone");
    drives()->addItem(root_);
    drives()->setCurrentText(path() + "/gone");
    emit drives()->activated(drives()->currentIndex());
    EXPECT_EQ(current(), path());
    drives()->setCurrentText(root_);
    emit drives()->activated(drives()->currentIndex());
    EXPECT_EQ(current(), root_);
    EXPECT_EQ(model()->filePath(tree()->currentIndex()), QDir::fromNativeSeparators(root_));
}

}  // namespace
}  // namespace zg
