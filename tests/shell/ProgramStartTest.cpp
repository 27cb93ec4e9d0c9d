// From the splash to the end of the program.

#include "shell/ProgramStart.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "base/Paths.h"
#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/StartSequence.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Places.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

constexpr int stillRunning = 7;

class ProgramStart : public ::testing::Test {
 protected:
    void SetUp() override {
        startSettings();
        // Ends a program that does not end by itself.
        QTimer::singleShot(5000, &guard_, [] { QCoreApplication::exit(stillRunning); });
    }

    template <typename Window>
    static Window* shownWindow(const char* name) {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == QLatin1String(name) && widget->isVisible())
                return dynamic_cast<Window*>(widget);
        return nullptr;
    }

    /// What the user does once, at the start of the splash.
    void during(const std::function<void()>& act) {
        host_.onPump = [this, act] {
            host_.onPump = nullptr;
            act();
        };
    }

    static frmMain& clickSplash() {
        QTest::mouseClick(shownWindow<QWidget>("frmSplashScreen"), Qt::LeftButton);
        return *shownWindow<frmMain>("frmMain");
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    QObject guard_;
};

TEST_F(ProgramStart, ExitChosenWhileTheSplashStillWaitsEndsTheProgram) {
    during([] { clickSplash().menuAction("mnuFileOption_18")->trigger(); });
    EXPECT_EQ(runProgram(host_), 0);
}

TEST_F(ProgramStart, AWindowClosedWhileTheSplashStillWaitsEndsTheProgram) {
    during([] { clickSplash().close(); });
    EXPECT_EQ(runProgram(host_), 0);
}

TEST_F(ProgramStart, AfterTheSplashTheProgramGoesOnUntilItIsEnded) {
    during([] {
        clickSplash();
        QTimer::singleShot(0, [] { QCoreApplication::exit(stillRunning); });
    });
    EXPECT_EQ(runProgram(host_), stillRunning);
}

TEST_F(ProgramStart, ExitAfterTheSplashEndsTheProgram) {
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [] {
        if (auto* window = shownWindow<frmMain>("frmMain")) window->menuAction("mnuFileOption_18")->trigger();
    });
    user.start(10);
    EXPECT_EQ(runProgram(host_), 0);
    EXPECT_GE(host_.now, 1750);
}

TEST_F(ProgramStart, AFileThatIsGivenIsOpenedInTheWindow) {
    const std::string file = inSources("data/samples/LOVETT_1988.frq");
    QString title;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&title] {
        auto* const window = shownWindow<frmMain>("frmMain");
        if (window == nullptr || window->windowTitle() == QLatin1String("Zephyrgraph")) return;
        title = window->windowTitle();
        window->menuAction("mnuFileOption_18")->trigger();
    });
    user.start(10);
    EXPECT_EQ(runProgram(host_, file), 0);
    EXPECT_EQ(title, QStringLiteral("Zephyrgraph - LOVETT_1988.frq"));
    EXPECT_GT(modPolarGraph.FrqRoseCount, 1);
}

TEST_F(ProgramStart, AFileThatIsGivenAndMissingIsToldInABox) {
    host_.boxAnswers = {BoxAnswer::Ok};
    host_.onBox = [] { QTimer::singleShot(0, [] { QCoreApplication::exit(stillRunning); }); };
    EXPECT_EQ(runProgram(host_, directory_.file("none.frq")), stillRunning);
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_NE(host_.boxes[0].text.find("File not found"), std::string::npos) << host_.boxes[0].text;
}

}  // namespace
}  // namespace zg
