// Splash, About, error, directory, aspect and zoom dialogs.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QTest>
#include <QTimer>

#include "base/Paths.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmAboutZephyrgraph.h"
#include "shell/FrmAspect.h"
#include "shell/FrmChangeDir.h"
#include "shell/FrmError.h"
#include "shell/FrmMain.h"
#include "shell/FrmSplashScreen.h"
#include "shell/FrmZoom.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

TEST(FrmSplashScreen, WaitsItsTimeAndShowsTheMainWindowOnce) {
    TestHost host;
    int shown = 0;
    std::int64_t at = 0;
    frmSplashScreen splash(host, [&] {
        ++shown;
        at = host.now;
    });
    splash.run();
    EXPECT_EQ(shown, 1);
    EXPECT_GE(at, 1750);
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(splash.findChild<QLabel*>("lblVersion")->text(), "Version 4.9");
    EXPECT_EQ(splash.findChild<QLabel*>("lblLevel")->text(), "April 6, 2011");
}

TEST(FrmSplashScreen, AClickInItsFirstMillisecondShowsTheMainWindowOnce) {
    TestHost host;
    int shown = 0;
    frmSplashScreen splash(host, [&] { ++shown; });
    bool clicked = false;
    host.onPump = [&] {
        if (clicked) return;
        clicked = true;
        EXPECT_TRUE(splash.isVisible());
        QTest::mouseClick(&splash, Qt::LeftButton);
        EXPECT_EQ(shown, 1) << "at once";
        EXPECT_FALSE(splash.isVisible());
    };
    splash.run();
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(splash.splashClicked());
}

TEST(FrmAbout, MirrorsTheFlagOfTheRun) {
    settings = Settings();
    settings.DebugFlag = true;
    {
        frmAboutZephyrgraph about;
        auto* box = about.findChild<QCheckBox*>("chkDebug");
        EXPECT_TRUE(box->isChecked());
        box->setChecked(false);
        EXPECT_TRUE(settings.DebugFlag) << "taken on unload";
    }
    EXPECT_FALSE(settings.DebugFlag);
    frmAboutZephyrgraph again;
    EXPECT_FALSE(again.findChild<QCheckBox*>("chkDebug")->isChecked());
    EXPECT_EQ(again.findChild<QLabel*>("lblVersion")->text(), "Version 4.9");
    again.show();
    QTest::mouseClick(again.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(again.isVisible());
}

void inDialog(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
        if (dialog->isVisible()) dialog->reject();
    });
}

TEST(FrmErrorTest, ARunCannotBeUnchecked) {
    frmError form;
    inDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("lblDescr")->text(), "what happened");
        auto* disable = dialog.findChild<QPushButton*>("cmdDisable");
        EXPECT_EQ(disable->text(), "Cannot Disable Error Checking When Trying to Run");
        EXPECT_FALSE(disable->isEnabled());
    });
    form.ShowError("what happened", "RUN");
    EXPECT_EQ(form.gsModType, "RUN");
}

TEST(FrmErrorTest, DisablingPutsTheHourglassBack) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    frmError form;
    inDialog([](QDialog& dialog) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the pointer is the default while it asks";
        QTest::mouseClick(dialog.findChild<QPushButton*>("cmdDisable"), Qt::LeftButton);
    });
    form.ShowError("x", "OTHER");
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

/// The shown directory without the breaks of its lines.
std::string shownDirectory(const frmChangeDir& form) {
    return form.findChild<QLabel*>("lblCurDir")->text().remove(QChar(0x200B)).toStdString();
}

TEST(FrmChangeDirTest, StartsWhereTheCallerIsAndEndsInASeparator) {
    const TempDirectory directory;
    TestHost host;
    std::string chosen = directory.path();
    frmChangeDir form(host, chosen, "/", nullptr);
    EXPECT_EQ(shownDirectory(form), directory.path());
    form.show();
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    EXPECT_EQ(chosen, directory.path() + pathSeparator);
    EXPECT_FALSE(form.isVisible());
}

TEST(FrmChangeDirTest, FallsBackToTheWorkingDirectoryAndThenToTheRoot) {
    const TempDirectory directory;
    TestHost host;
    std::string chosen = "no such place";
    frmChangeDir inWork(host, chosen, directory.path());
    EXPECT_EQ(shownDirectory(inWork), directory.path());
    frmChangeDir inRoot(host, chosen, "neither");
    EXPECT_EQ(shownDirectory(inRoot), onWindows ? "C:\\" : "/");
}

TEST(FrmChangeDirTest, CancelKeepsWhereItStarted) {
    const TempDirectory directory;
    TestHost host;
    std::string chosen = directory.path();
    frmChangeDir form(host, chosen, "/");
    form.show();
    form.findChild<QTreeView*>("Dir1")->setCurrentIndex(QModelIndex());
    QTest::mouseClick(form.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
    EXPECT_EQ(chosen, directory.path() + pathSeparator);
}

class PlotDialogs : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        window_ = std::make_unique<frmMain>(host_);
        window_->Form_Load();
    }

    PolarGraph& plot() { return window_->pgPolarGraph(); }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmMain> window_;
};

struct Entry {
    const char* text;
    const char* message;  ///< "" if accepted
};

class AspectEntries : public PlotDialogs, public ::testing::WithParamInterface<Entry> {};

TEST_P(AspectEntries, AreTakenOrTold) {
    frmAspect form(host_, plot());
    form.show();
    auto* text = form.findChild<QLineEdit*>("txtAspect");
    EXPECT_EQ(form.windowTitle(), "Custom Zoom");
    EXPECT_EQ(form.findChild<QLabel*>("lblLabel")->text(), "Current Aspect: 1.5");
    EXPECT_EQ(text->selectedText(), "1.5");
    text->setText(GetParam().text);
    const bool refused = *GetParam().message != '\0';
    if (refused) host_.boxAnswers = {BoxAnswer::Ok};
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
    EXPECT_EQ(form.isVisible(), refused);
    if (!refused) return;
    EXPECT_EQ(host_.boxes[0].text, GetParam().message);
    EXPECT_EQ(host_.boxes[0].title, "Aspect Ratio");
    EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Warning);
    EXPECT_FLOAT_EQ(plot().AspectRatio(), 1.5F);
}

INSTANTIATE_TEST_SUITE_P(Limits, AspectEntries,
                         ::testing::Values(Entry{"5", ""}, Entry{"0.0001", ""}, Entry{"2,5", ""},
                                           Entry{"5.01", "The aspect ratio must be less than or equal to 5"},
                                           Entry{"0", "The aspect ratio  must be greater than 0."},
                                           Entry{"-1", "The aspect ratio  must be greater than 0."},
                                           Entry{"abc", "The aspect ratio  must be greater than 0."},
                                           Entry{"1e9", "The aspect ratio must be less than or equal to 5"}));

TEST_F(PlotDialogs, AspectTakesDigitsAndOnePoint) {
    frmAspect form(host_, plot());
    form.show();
    auto* text = form.findChild<QLineEdit*>("txtAspect");
    QTest::keyClicks(text, "2.a5.1");
    EXPECT_EQ(text->text(), "2.51");
    text->clear();
    EXPECT_FALSE(form.findChild<QPushButton*>("cmdOk")->isEnabled());
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FLOAT_EQ(plot().AspectRatio(), 1.5F);
}

class ZoomEntries : public PlotDialogs, public ::testing::WithParamInterface<Entry> {};

TEST_P(ZoomEntries, AreTakenOrTold) {
    frmZoom form(host_, plot());
    form.show();
    EXPECT_EQ(form.findChild<QLabel*>("lblLabel")->text(), "Current zoom: 100%");
    auto* list = form.findChild<QComboBox*>("cmbZoom");
    list->setCurrentText(GetParam().text);
    const bool refused = *GetParam().message != '\0';
    if (refused) host_.boxAnswers = {BoxAnswer::Ok};
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
    EXPECT_EQ(form.isVisible(), refused);
    if (refused) {
        EXPECT_EQ(host_.boxes[0].text, GetParam().message);
        EXPECT_EQ(host_.boxes[0].title, "Zoom");
        EXPECT_EQ(host_.boxes[0].icon, BoxIcon::Information);
        EXPECT_EQ(plot().Zoom(), 100);
        return;
    }
    ReadCfgFile(settings.CfgFilePath);
    EXPECT_EQ(settings.ZoomPercentText, GetParam().text) << "kept in the configuration";
    EXPECT_EQ(std::to_string(plot().Zoom()), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Limits, ZoomEntries,
                         ::testing::Values(Entry{"20", ""}, Entry{"500", ""}, Entry{"65", ""},
                                           Entry{"19", "Enter a value between 20 to 500."},
                                           Entry{"501", "Enter a value between 20 to 500."},
                                           Entry{"", "Enter a value between 20 to 500."},
                                           Entry{"abc", "Enter a value between 20 to 500."},
                                           Entry{"1e9", "Enter a value between 20 to 500."}));

TEST_F(PlotDialogs, EnterOnCancelCancels) {
    frmZoom form(host_, plot());
    form.show();
    form.findChild<QComboBox*>("cmbZoom")->setCurrentText("250");
    auto* cancel = form.findChild<QPushButton*>("cmdCancel");
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(plot().Zoom(), 100);
}

TEST_F(PlotDialogs, ZoomOffersItsRowsAndTakesDigits) {
    frmZoom form(host_, plot());
    form.show();
    auto* list = form.findChild<QComboBox*>("cmbZoom");
    EXPECT_EQ(list->count(), 17 + 4 + 6);
    EXPECT_EQ(list->itemText(0), "20");
    EXPECT_EQ(list->itemText(26), "500");
    list->clearEditText();
    QTest::keyClicks(list->lineEdit(), "1x5.0");
    EXPECT_EQ(list->currentText(), "150");
}

TEST_F(PlotDialogs, ATypedZoomIsNotCompletedToARowOfTheList) {
    frmZoom form(host_, plot());
    form.show();
    auto* list = form.findChild<QComboBox*>("cmbZoom");
    list->lineEdit()->selectAll();
    QTest::keyClicks(list->lineEdit(), "12");
    EXPECT_EQ(list->currentText(), "12");
    list->lineEdit()->selectAll();
    QTest::keyClicks(list->lineEdit(), "42");
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
    EXPECT_EQ(plot().Zoom(), 42);
}

/// Key presses that carry their characters, as a real keyboard sends them.
void typeEach(QWidget& box, const QString& text) {
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(character));
        QApplication::sendEvent(&box, &press);
    }
}

TEST_F(PlotDialogs, NoCharacterAboveTheDigitsOfTheKeyboardGetsIn) {
    frmZoom zoom(host_, plot());
    zoom.show();
    auto* list = zoom.findChild<QComboBox*>("cmbZoom");
    list->clearEditText();
    typeEach(*list->lineEdit(), QString::fromUtf8("2\u00E95\u20AC\u0663"));
    EXPECT_EQ(list->currentText(), "25");
    frmAspect aspect(host_, plot());
    aspect.show();
    auto* text = aspect.findChild<QLineEdit*>("txtAspect");
    text->clear();
    typeEach(*text, QString::fromUtf8("2\u00E9.5\u20AC"));
    EXPECT_EQ(text->text(), "2.5");
}

}  // namespace
}  // namespace zg
