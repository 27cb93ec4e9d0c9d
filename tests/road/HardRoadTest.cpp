// The whole path with obstacles: odd names, a processor that is missing or ends early, a program directory
// that is not writable, a run of another window.

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/ReasonLabel.h"
#include "processing/RunLock.h"
#include "tests/road/RoadFixture.h"

namespace zg {
namespace {

class HardRoad : public WholeRoad {
 protected:
    /// The form for AERMET surface data, filled in, with a copy of the sample under that name.
    void openWith(const std::string& name) {
        const std::string data = directory_.file(name);
        std::filesystem::copy(samples + "LOVETT.SFC", data);
        open<frmOpenAERMETFile>(InputKind::AermSfc);
        browse(data);
        fill("txtAnemometerHeight", "50");
        fill("txtStationID", "");
    }
    /// Runs until the second line shows a text, then ends the program.
    std::string reasonOfTheWait(const char* button = "cmdView") {
        std::string reason;
        host_.onPump = [this, &reason] {
            QCoreApplication::processEvents();
            QThread::msleep(1);
            const auto& label = *child<ReasonLabel>("lblReason");
            if (label.isVisible() && reason.empty()) {
                reason = label.text().toStdString();
                const QString escaped = "<p>" + label.text().toHtmlEscaped() + "</p>";
                EXPECT_TRUE(label.toolTip() == label.text() || label.toolTip() == escaped);
                EXPECT_TRUE(status().starts_with("Running.")) << "the animated text stays";
                EXPECT_GE(label.height(), label.heightForWidth(label.width())) << "no line is cut off";
                ending_ = true;
            }
        };
        click(button);
        EXPECT_FALSE(child("lblReason")->isVisible());
        return reason;
    }
    void replaceProcessor(const std::string& script) {
        const std::string program = inApplicationDirectory("tempoline.exe");
        std::filesystem::remove(program);
        directory_.write("the program/tempoline.exe", script);
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }
    std::string tip() { return child<QLabel>("lblStatus")->toolTip().toStdString(); }
};

TEST_F(HardRoad, OddNamesAreNamesLikeAnyOther) {
    for (const std::string base :
         {"a\"b", "-dash", "--", "it's", "$(touch PWNED)x", "50%&^;|<>", "--merge"}) {
        form_.reset();
        std::string name = base;
        std::erase(name, ' ');
        openWith(name + ".sfc");
        click("cmdView");
        const std::string made = FileNameOf(settings.CurrentFrqPath);
        ASSERT_TRUE(made.starts_with(name + "_AERMETSFC_")) << made << " " << listing() << tip();
        expectRose(made.substr(0, made.size() - 4));
        std::filesystem::remove_all(out_);
        std::filesystem::create_directory(out_);
    }
    EXPECT_FALSE(std::filesystem::exists(directory_.file("PWNED")));
}

TEST_F(HardRoad, ANameOfTwoLinesIsRefusedInWords) {
    openWith("a\ncalc.sfc");
    host_.boxAnswers = {BoxAnswer::Cancel};
    click("cmdView");
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].title, "ERROR:");
    EXPECT_NE(host_.boxes[0].text.find("Bad file name or number: \"a<LF>calc_AERMETSFC_"), std::string::npos)
        << host_.boxes[0].text;
    EXPECT_TRUE(std::filesystem::is_empty(out_));
}

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

TEST_F(HardRoad, AProcessorThatEndsWithoutAListingIsToldWhileTheWaitGoesOn) {
    replaceProcessor(
        "#!/bin/sh\necho 'tempoline: LOVETT.SFC, line 51: no wind & <b>no</b> file' >&2\nexit 1\n");
    openWith("a.sfc");
    EXPECT_EQ(reasonOfTheWait(),
              "tempoline.exe ended with status 1: LOVETT.SFC, line 51: no wind & <b>no</b> file");
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

TEST_F(HardRoad, AnotherDirectoryIsOfferedWhereAnotherWindowWaits) {
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    const pid_t other = fork();
    if (other == 0) {
        const auto lock = RunLock::take(out_);
        if (write(ends[1], "x", 1) == 1)
            for (;;) pause();
        _exit(1);
    }
    char sign = 0;
    ASSERT_EQ(read(ends[0], &sign, 1), 1);
    const std::string elsewhere = directory_.file("elsewhere");
    std::filesystem::create_directory(elsewhere);
    openWith("a.sfc");
    host_.boxAnswers = {BoxAnswer::Yes};
    host_.folderAnswers = {elsewhere};
    click("cmdView");
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    EXPECT_EQ(status(), "Finished");
    EXPECT_EQ(child<QLineEdit>("txtOutputDirectory")->text().toStdString(), elsewhere + "/");
    EXPECT_EQ(DirOf(settings.CurrentFrqPath), elsewhere);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(out_), std::filesystem::directory_iterator()),
              1)
        << "the lock of the other window alone";
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
