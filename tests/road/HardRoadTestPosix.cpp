// The whole path with names that Windows does not allow, a script for the processor, and a process for
// another window.

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "processing/RunLock.h"
#include "tests/road/HardRoad.h"

namespace zg {
namespace {

void replaceProcessor(const TempDirectory& directory, const std::string& script) {
    const std::string program = inApplicationDirectory("tempoline.exe");
    std::filesystem::remove(program);
    directory.write("the program/tempoline.exe", script);
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
}

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

TEST_F(HardRoad, AProcessorThatEndsWithoutAListingIsToldWhileTheWaitGoesOn) {
    replaceProcessor(
        directory_,
        "#!/bin/sh\necho 'tempoline: LOVETT.SFC, line 51: no wind & <b>no</b> file' >&2\nexit 1\n");
    openWith("a.sfc");
    EXPECT_EQ(reasonOfTheWait(),
              "tempoline.exe ended with status 1: LOVETT.SFC, line 51: no wind & <b>no</b> file");
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

}  // namespace
}  // namespace zg
