// The whole path with obstacles: a name with a blank, a processor that is missing or ends early, a program
// directory that is not writable.

#include "tests/road/HardRoad.h"

namespace zg {
namespace {

TEST_F(HardRoad, ABlankInTheNameIsToldWhileTheWaitGoesOn) {
    openWith("my data.sfc");
    EXPECT_EQ(reasonOfTheWait(),
              "a blank in the name: the processor cannot find its control file; rename the input");
}

TEST_F(HardRoad, AMissingProcessorIsToldWhileTheWaitGoesOn) {
    std::filesystem::remove(inApplicationDirectory("tempoline.exe"));
    openWith("a.sfc");
    EXPECT_EQ(reasonOfTheWait(), "tempoline.exe is missing in " + applicationDirectory);
}

TEST_F(HardRoad, TheWizardTellsItToo) {
    std::filesystem::remove(inApplicationDirectory("tempoline.exe"));
    openModelGrid("1.5", "2.25", "cell");
    EXPECT_EQ(reasonOfTheWait("cmdPROCESS"), "tempoline.exe is missing in " + applicationDirectory);
}

TEST_F(HardRoad, AFailedRunHasTheListingsLastLineForATip) {
    openWith("a.sfc");
    std::string data = directory_.read("a.sfc");
    data.insert(data.find('\n', data.size() / 2) + 1, "no winds\n");
    directory_.write("a.sfc", data);
    click("cmdView");
    EXPECT_EQ(status(), "Error has occurred.");
    const std::string last = tip();
    EXPECT_TRUE(last.find("ERROR: ") != std::string::npos && last.find("a.sfc") != std::string::npos) << last;
    child("cmdView")->setFocus();
    child("cmdExit")->setFocus();
    EXPECT_EQ(status(), "");
    EXPECT_EQ(tip(), "");
}

/// Not even the superuser can write these files: a directory has the name of the settings file.
class ReadOnlyRoad : public HardRoad {
 protected:
    void prepareProgram() override {
        std::filesystem::create_directory(inApplicationDirectory("Zephyrgraph.cfg"));
    }
};

TEST_F(ReadOnlyRoad, WithoutSettingsTheFactoryOnesMakeTheRose) {
    openWith("a.sfc");
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentText(), "(UTC-05:00) Eastern Time (US & Canada)");
    click("cmdView");
    const std::string made = FileNameOf(settings.CurrentFrqPath);
    expectRose(made.substr(0, made.size() - std::min<std::size_t>(4, made.size())));
    EXPECT_EQ(settings.WindClassString, "0.5,1.8,3.3,5.4,8.5,10.8");
}

TEST_F(ReadOnlyRoad, ChangesHoldUntilTheProgramEnds) {
    openWith("a.sfc");
    child<QComboBox>("cboTimeZone")->setCurrentIndex(0);
    click("cmdView");
    ASSERT_EQ(status(), "Finished") << listing();
    form_.reset();
    open<frmOpenAERMETFile>(InputKind::AermSfc);
    EXPECT_EQ(child<QComboBox>("cboTimeZone")->currentIndex(), 0);
}

}  // namespace
}  // namespace zg
