// What the main window does once at the start, and what it leaves alone.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QTimer>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

class FrmMainStart : public ::testing::Test {
 protected:
    void SetUp() override { startSettings(); }

    frmMain& start() {
        window_ = std::make_unique<frmMain>(host_);
        window_->Form_Load();
        return *window_;
    }

    void picture(const char* name, QColor colour) {
        QDir(QString::fromStdString(directory_.path())).mkpath("Bitmap");
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(
            image.save(QString::fromStdString(directory_.file(std::string("Bitmap/") + name)), "BMP"));
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmMain> window_;
};

TEST_F(FrmMainStart, TheMonitorEntryHasItsOwnWording) {
    EXPECT_EQ(start().menuAction("mnuFileOption_6")->text(), "Process Monitor Met. Data");
}

TEST_F(FrmMainStart, StoredZoomAndRadiusAreApplied) {
    settings.ZoomListIndex = 5;
    settings.ZoomPercentText = "150";
    settings.RadiusText = "50%";
    WriteCfgFile(settings.CfgFilePath);
    frmMain& window = start();
    EXPECT_EQ(window.pgPolarGraph().Zoom(), 150);
    EXPECT_FLOAT_EQ(window.pgPolarGraph().Polar().Radius, 10);
    EXPECT_EQ(window.controls().lstZoom->currentRow(), 5);
}

TEST_F(FrmMainStart, TheListsRowReplacesTheStoredPercentage) {
    settings.ZoomListIndex = 3;
    settings.ZoomPercentText = "65";
    WriteCfgFile(settings.CfgFilePath);
    EXPECT_EQ(start().pgPolarGraph().Zoom(), 100);
    EXPECT_EQ(settings.ZoomPercentText, "100");
}

TEST_F(FrmMainStart, AnEmptyRadiusLeavesTheGridsOwn) {
    settings.RadiusText = "";
    WriteCfgFile(settings.CfgFilePath);
    EXPECT_FLOAT_EQ(start().pgPolarGraph().Polar().Radius, 5);
}

TEST_F(FrmMainStart, AStoredRowOfCustomOpensTheZoomDialogBeforeTheWindowIsSeen) {
    settings.ZoomListIndex = 14;
    settings.ZoomPercentText = "65";
    WriteCfgFile(settings.CfgFilePath);
    bool seen = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        seen = dialog->objectName() == "frmZoom" && !window_->isVisible();
        dialog->reject();
    });
    EXPECT_EQ(start().pgPolarGraph().Zoom(), 65);
    EXPECT_TRUE(seen);
}

TEST_F(FrmMainStart, TheAspectListGetsItsRowWithoutActing) {
    frmMain& window = start();
    EXPECT_EQ(window.controls().lstAspect->currentRow(), 0);
    EXPECT_FLOAT_EQ(window.pgPolarGraph().AspectRatio(), 1.5F);
}

TEST_F(FrmMainStart, ClassMinimaInMemoryAreTheFactoryOnesAfterwards) {
    settings.WindClassMin = {"1", "2", "3", "4", "5", "6"};
    WriteCfgFile(settings.CfgFilePath);
    startSettings();
    frmMain& window = start();
    EXPECT_EQ(settings.WindClassMin[0], "0.5");
    EXPECT_EQ(settings.WindClassString, "1,2,3,4,5,6") << "the derived text keeps the user's own";
    ReadCfgFile(settings.CfgFilePath);
    EXPECT_EQ(settings.WindClassMin[0], "1") << "the start itself keeps the file's";
    resetWindClassMin();
    window.controls().lstZoom->setCurrentRow(6);
    ReadCfgFile(settings.CfgFilePath);
    EXPECT_EQ(settings.WindClassMin[0], "0.5") << "a move of the zoom list stores the factory values";
}

TEST_F(FrmMainStart, TheFirstBackgroundPictureOfFourIsTaken) {
    picture("WP3.pgw", Qt::green);
    picture("WP4.pgw", Qt::red);
    frmMain& window = start();
    ASSERT_NE(window.pgPolarGraph().Picture(), nullptr);
    EXPECT_EQ(window.pgPolarGraph().PictureStyle(), 2);
}

TEST_F(FrmMainStart, WithoutABackgroundPictureNothingChanges) {
    frmMain& window = start();
    EXPECT_EQ(window.pgPolarGraph().Picture(), nullptr);
    EXPECT_EQ(window.pgPolarGraph().PictureStyle(), 0);
}

TEST_F(FrmMainStart, APictureThatIsNoneIsAnErrorOfTheStart) {
    QDir(QString::fromStdString(directory_.path())).mkpath("Bitmap");
    directory_.write("Bitmap/WP1.pgw", "no picture");
    window_ = std::make_unique<frmMain>(host_);
    EXPECT_THROW(window_->Form_Load(), RunTimeError);
}

TEST_F(FrmMainStart, SwatchesMeasureFortySixByEighteen) {
    EXPECT_EQ(start().legendSwatchSize(), QSize(46, 18));
}

TEST_F(FrmMainStart, LabelLinesStartEmpty) {
    modPolarGraph.GraphTitle = "left over";
    start();
    EXPECT_EQ(modPolarGraph.GraphTitle, "");
    EXPECT_FALSE(modPolarGraph.FrqLoaded);
    EXPECT_TRUE(settings.DebugFlag);
}

}  // namespace
}  // namespace zg
