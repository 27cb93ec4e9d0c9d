// What the launcher runs, what it refuses, and what it reports about a run that leaves no marker.

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/RunTimeError.h"
#include "tests/platform/BatchRunFixture.h"
#include "tests/support/OddNames.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

class Launcher : public BatchRun {
 protected:
    /// The error of starting a run whose batch file has these lines by then, which must not run anything.
    std::string refusal(const std::vector<std::string>& lines) {
        processor("touch \"$0.ran\"\n");
        writeBatchFile(lines);
        return raisedBy([this] { starter_.startRun({out_ + "/", "B", programs_}); });
    }
    std::string othersLines() const {
        return "5: Invalid procedure call or argument: " + batchFile() +
               " holds other lines than this program writes";
    }
};

TEST_F(Launcher, RunsNoLinesOfAnother) {
    const std::vector<std::string> good = batchLines({out_ + "/", "B", programs_});
    const std::string touch = "\"" + directory_.file("touch") + "\" " + directory_.file("PWNED");
    executable("touch", "#!/bin/sh\n: > '" + directory_.file("PWNED") + "'\n");
    EXPECT_EQ(refusal({touch}), othersLines());
    EXPECT_EQ(refusal({"notepad \"roses", "\"touch\" PWNED.frq\""}), othersLines());
    for (std::size_t at = 0; at <= good.size(); ++at) {
        std::vector<std::string> lines = good;
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), touch);
        EXPECT_EQ(refusal(lines), othersLines()) << at;
    }
    EXPECT_EQ(refusal({}), othersLines());
    EXPECT_EQ(refusal({"notepad \"a\"", "notepad \"b\""}), othersLines());
    EXPECT_FALSE(std::filesystem::exists(directory_.file("PWNED")));
}

TEST_F(Launcher, RunsOnlyThisProgramsProcessorAndOnlyWhereTheBatchFileLies) {
    std::filesystem::create_directory(directory_.file("other"));
    executable("other/tempoline.exe", "#!/bin/sh\n: > '" + directory_.file("PWNED") + "'\n");
    EXPECT_EQ(refusal(batchLines({out_ + "/", "B", directory_.file("other")})), othersLines());
    EXPECT_EQ(refusal(batchLines({directory_.file("other/"), "B", programs_})), othersLines());
    EXPECT_FALSE(std::filesystem::exists(directory_.file("PWNED")));
    EXPECT_FALSE(std::filesystem::exists(programs_ + "/tempoline.exe.ran"));
}

TEST_F(Launcher, TakesOddNamesAsTheyAre) {
    processor("printf '%s|' \"$@\" > words; echo listing > \"./${1%.inp}.lst\"\n");
    for (const std::string& name : oddNames()) {
        for (const char* left : {"finished.txt", "words"}) std::filesystem::remove(out_ + "/" + left);
        start(name);
        ASSERT_TRUE(comes("finished.txt")) << name << ": " << starter_.outcome(batchFile());
        EXPECT_EQ(directory_.read("out dir/words"), name + "_tempoline.inp|");
        EXPECT_FALSE(isThere("PWNED")) << name;
    }
}

TEST_F(Launcher, TakesDirectoriesOfOddNamesAsTheyAre) {
    std::vector<std::string> names = oddNames();
    names.insert(names.end(), {"two  blanks ", " before"});
    for (const std::string& name : names) {
        out_ = directory_.file(name);
        programs_ = directory_.file("programs of " + name);
        std::filesystem::create_directory(out_);
        std::filesystem::create_directory(programs_);
        applicationDirectory = programs_;
        executable("programs of " + name + "/tempoline.exe",
                   "#!/bin/sh\npwd > where; echo x > B_tempoline.lst\n");
        start();
        ASSERT_TRUE(comes("finished.txt")) << name << ": " << starter_.outcome(batchFile());
        EXPECT_EQ(directory_.read(name + "/where"), out_ + "\n");
    }
    EXPECT_FALSE(std::filesystem::exists(directory_.file("PWNED")));
}

TEST_F(Launcher, TellsTheStatusAndTheLastMessageOfTheProcessor) {
    processor(
        "echo out; echo 'tempoline: a' >&2; echo 'tempoline: LOVETT.SFC, line 51: no wind' >&2; exit 1\n");
    start();
    EXPECT_EQ(outcome(), "tempoline.exe ended with status 1: LOVETT.SFC, line 51: no wind");
    EXPECT_FALSE(isThere("finished.txt"));
    EXPECT_EQ(carryOut("B", directory_.file("report")),
              "tempoline: a\ntempoline: LOVETT.SFC, line 51: no wind\n"
              "tempoline.exe ended with status 1: LOVETT.SFC, line 51: no wind\n")
        << "the same words in the terminal";
}

TEST_F(Launcher, TellsOfAMissingProcessorACrashABlankAndASilentEnd) {
    start();
    EXPECT_EQ(outcome(), "tempoline.exe is missing in " + programs_);
    processor("kill -SEGV $$\n");
    start();
    EXPECT_TRUE(outcome().starts_with("tempoline.exe was ended by the signal SEGV")) << outcome();
    processor("exit 0\n");
    start();
    EXPECT_EQ(outcome(), "tempoline.exe ended with status 0 and left no listing");
    start("my B");
    EXPECT_EQ(
        outcome(),
        "a blank in the name: the processor cannot find its control file; rename the input or the station");
    EXPECT_TRUE(carryOut("my B").ends_with(outcome() + "\n"));
    processor("echo listing > B_tempoline.lst\n");
    std::filesystem::create_directory(out_ + "/finished.txt");
    start();
    EXPECT_EQ(outcome(), "finished.txt cannot be written in " + out_ + "/");
}

TEST_F(Launcher, TellsNothingWhileTheProcessorWorksAndNothingOfARunThatLeftItsMarker) {
    processor("touch ran; while [ ! -e go ]; do sleep 0.05; done; echo listing > B_tempoline.lst\n");
    EXPECT_EQ(starter_.outcome(batchFile()), "");
    start();
    ASSERT_TRUE(comes("ran"));
    EXPECT_EQ(starter_.outcome(batchFile()), "");
    directory_.write("out dir/go", "");
    ASSERT_TRUE(comes("finished.txt"));
    EXPECT_EQ(starter_.outcome(batchFile()), "");
}

TEST_F(Launcher, TellsOfTheLastStartAlone) {
    processor("exit 4\n");
    start();
    EXPECT_EQ(outcome(), "tempoline.exe ended with status 4");
    processor("touch ran; while [ ! -e go ]; do sleep 0.05; done; exit 5\n");
    start();
    ASSERT_TRUE(comes("ran"));
    EXPECT_EQ(starter_.outcome(batchFile()), "");
    directory_.write("out dir/go", "");
    EXPECT_EQ(outcome(), "tempoline.exe ended with status 5");
}

/// Runs the script in a terminal that is interrupted as soon as the processor works.
class Terminal {
 public:
    explicit Terminal(const std::string& script) {
        child_ = forkpty(&master_, nullptr, nullptr, nullptr);
        if (child_ == 0) {
            execlp("sh", "sh", "-c", script.c_str(), nullptr);
            _exit(127);
        }
    }
    ~Terminal() {
        close();
        waitpid(child_, nullptr, 0);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    void close() {
        if (master_ >= 0) ::close(master_);
        master_ = -1;
    }
    void interrupt() { EXPECT_EQ(write(master_, "\x03", 1), 1); }

 private:
    int master_ = -1;
    pid_t child_ = 0;
};

TEST_F(Launcher, LooksAtWhatIsLeftWhenItsWindowIsClosedOrInterrupted) {
    const std::string report = directory_.file("report");
    const std::string script = asShellScript({out_ + "/", "B", programs_}, report);
    const auto comesOnce = [](const std::string& path) {
        return QTest::qWaitFor([&] { return std::filesystem::exists(path); }, longEnoughMs);
    };
    for (const bool closed : {true, false}) {
        const auto lost = [&] {
            for (const char* left : {"ran", "finished.txt", "B_tempoline.lst"})
                std::filesystem::remove(out_ + "/" + left);
            std::filesystem::remove(report);
            Terminal terminal(script);
            ASSERT_TRUE(comes("ran"));
            if (closed)
                terminal.close();
            else
                terminal.interrupt();
            ASSERT_TRUE(QTest::qWaitFor(
                [&] { return std::filesystem::exists(report) || isThere("finished.txt"); }, longEnoughMs));
        };
        // As another program: a shell may lose the signal that comes while it starts one.
        processor("touch ran; exec sleep 300\n");
        lost();
        ASSERT_TRUE(comesOnce(report)) << closed;
        EXPECT_EQ(directory_.read("report"), "tempoline.exe was interrupted, or its window was closed\n");
        EXPECT_FALSE(isThere("finished.txt"));
        processor(
            "trap 'echo interrupted > B_tempoline.lst; exit 130' HUP INT; touch ran\n"
            "while :; do sleep 0.05; done\n");
        lost();
        EXPECT_TRUE(comes("finished.txt")) << "the processor had the time to write its listing: " << closed;
        EXPECT_EQ(directory_.read("out dir/finished.txt"), "interrupted\n");
    }
}

TEST_F(Launcher, GoesOnWithoutAWindowToTell) {
    processor("touch ran; while [ ! -e go ]; do sleep 0.05; done; echo x > B_tempoline.lst\n");
    {
        BatchStarter ended;
        writeBatchFile(batchLines({out_ + "/", "B", programs_}));
        ended.startRun({out_ + "/", "B", programs_});
        ASSERT_TRUE(comes("ran"));
    }
    directory_.write("out dir/go", "");
    EXPECT_TRUE(comes("finished.txt"));
}

}  // namespace
}  // namespace zg
