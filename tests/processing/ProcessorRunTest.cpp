#include "processing/ProcessorRun.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "processing/RunLock.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

using Texts = std::vector<std::string>;

class FakeStarter : public ProcessStarter {
 public:
    void start(const std::string& batchFile, WindowStyle style) override {
        started.push_back(batchFile);
        EXPECT_EQ(style, WindowStyle::NormalFocus);
        if (onStart) onStart();
    }
    std::string outcome(const std::string& batchFile) override {
        return batchFile == started.back() ? told : "of another run";
    }
    Texts started;
    std::string told;
    std::function<void()> onStart;
};

class ProcessorRun : public ::testing::Test {
 protected:
    void SetUp() override {
        applicationDirectory = "/opt/my programs";
        hooks_.plan = [this] {
            log("plan");
            return plan();
        };
        hooks_.showName = [this](const std::string& name) { log("name " + name); };
        hooks_.setStatus = [this](const std::string& text) {
            status_ = text;
            if (text.rfind("Running.", 0) != 0) log("status " + text);
        };
        hooks_.setBusy = [this](bool busy) { log(busy ? "busy" : "idle"); };
        hooks_.load = [this](const std::string& path) {
            log("load " + path.substr(directory_.path().size() + 1));
        };
        hooks_.showExit = [this] { log("exit"); };
        hooks_.keepTimeZone = [this] { log("zone"); };
        hooks_.setReason = [this](const std::string& text) {
            if (reasons_.empty() || reasons_.back() != text) reasons_.push_back(text);
        };
        hooks_.setTip = [this](const std::string& text) { tip_ = text; };
        hooks_.abandoned = [this] { return abandoned_ || host_.pumps >= pumpLimit; };
    }
    void TearDown() override { EXPECT_LT(host_.pumps, pumpLimit) << "the wait did not end"; }
    /// What the fields say now.
    RunPlan plan() const {
        RunPlan plan;
        plan.directory = out_;
        plan.control.base = base_;
        plan.outputs = outputs_;
        if (!outputs_.empty()) plan.firstName = outputs_[0].name;
        return plan;
    }
    void log(const std::string& text) { log_.push_back(text); }
    void finish(const Texts& made) {
        for (const std::string& name : made) directory_.write(name + ".frq", "");
        directory_.write("finished.txt", "");
    }
    void run(const RunForm& form) { runProcessor(host_, starter_, form, hooks_); }

    static constexpr int pumpLimit = 10'000;

    TempDirectory directory_;
    TestHost host_;
    FakeStarter starter_;
    RunHooks hooks_;
    std::string out_ = directory_.path() + "/";
    std::string base_ = "BASE";
    std::vector<RunOutput> outputs_ = {{"one", "1001"}, {"two", "1002"}, {"three", "1003"}};
    Texts log_;
    std::string status_;
    Texts reasons_;  ///< every change
    std::string tip_;
    bool abandoned_ = false;
};

TEST_F(ProcessorRun, TheBatchFileHasItsFiveLines) {
    starter_.onStart = [this] {
        EXPECT_EQ(directory_.read("run_tempoline.bat"),
                  directory_.path() + "/:\r\ncd \"" + directory_.path() +
                      "/\"\r\n\"/opt/my programs/tempoline.exe\" BASE_tempoline.inp\r\n"
                      "copy BASE_tempoline.lst finished.txt\r\npause\r\n");
        finish({});
    };
    run(RunForm::Single);
    EXPECT_EQ(starter_.started, Texts{directory_.file("run_tempoline.bat")});
}

TEST_F(ProcessorRun, StationsArePlottedInOrderAndEndFinishedWhateverHappened) {
    starter_.onStart = [this] { finish({"one", "three"}); };
    run(RunForm::Stations);
    EXPECT_EQ(log_, (Texts{"plan", "name one", "name one", "load one.frq", "name two",
                           "status Error processing Station 1002", "name three", "load three.frq",
                           "status Finished", "exit", "idle", "zone"}));
}

TEST_F(ProcessorRun, HeightsKeepTheLastResult) {
    starter_.onStart = [this] { finish({"one", "two"}); };
    run(RunForm::Heights);
    EXPECT_EQ(log_.front(), "busy");
    EXPECT_EQ(status_, "Error has occurred.");
}

TEST_F(ProcessorRun, ASingleOutputTellsItsOwnResult) {
    outputs_ = {{"one", ""}};
    starter_.onStart = [this] { finish({"one"}); };
    run(RunForm::Single);
    EXPECT_EQ(status_, "Finished");
    std::remove(directory_.file("one.frq").c_str());
    starter_.onStart = [this] { finish({}); };
    run(RunForm::Single);
    EXPECT_EQ(status_, "Error has occurred.");
    EXPECT_EQ(log_.back(), "zone") << "a failed run saves it too";
}

TEST_F(ProcessorRun, AStaleMarkerIsRemovedAndTheWaitLooksEvery900Milliseconds) {
    directory_.write("finished.txt", "stale");
    directory_.write("FINISHED.TXT", "stale in another spelling");
    int polls = 0;
    Texts texts;
    hooks_.setStatus = [&](const std::string& text) { texts.push_back(text); };
    host_.onPump = [&] {
        if (host_.now >= 1900 && polls++ == 0) finish({"one"});
    };
    outputs_ = {{"one", ""}};
    run(RunForm::Single);
    ASSERT_EQ(texts.size(), 1U + 3 * 3 + 3 + 1);
    EXPECT_EQ(texts[0], "Running...");
    EXPECT_EQ(texts[1], "Running.  ");
    EXPECT_EQ(texts[2], "Running.. ");
    EXPECT_EQ(texts[3], "Running...");
    EXPECT_EQ(host_.now, 3 * 900 + 900);
}

TEST_F(ProcessorRun, AnErrorIsToldAndRetryResumesAtTheStep) {
    const std::string inTheWay = directory_.file("BASE_tempoline.inp");
    std::filesystem::create_directory(inTheWay);
    host_.onBox = [&] {
        if (host_.boxes.size() == 2) std::filesystem::remove(inTheWay);
    };
    starter_.onStart = [this] { finish({"one", "two", "three"}); };
    host_.boxAnswers = {BoxAnswer::Retry, BoxAnswer::Retry};
    run(RunForm::Stations);
    ASSERT_EQ(host_.boxes.size(), 2U);
    EXPECT_EQ(host_.boxes[0].title, "ERROR:");
    EXPECT_EQ(host_.boxes[0].text,
              "The following error has occurred: \"Path/File access error\".  (Error Number = 75)");
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::RetryCancel);
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "plan"), 1) << "the fields are not read again";
    EXPECT_TRUE(std::filesystem::is_regular_file(inTheWay));
    EXPECT_EQ(status_, "Finished");
}

TEST_F(ProcessorRun, EveryStepCanBeTriedAgainWithoutTheStepsBeforeIt) {
    outputs_ = {{"one", ""}};
    const auto failingOnce = [this](const std::string& name, auto then) {
        return [this, name, then, failed = false](auto&&...) mutable {
            log(name);
            if (!std::exchange(failed, true)) throw RunTimeError(70, "Permission denied: " + name);
            then();
        };
    };
    const std::vector<std::string> inTheWay = {directory_.file("BASE_tempoline.inp"),
                                               directory_.file("run_tempoline.bat")};
    for (const std::string& path : inTheWay) std::filesystem::create_directory(path);
    hooks_.plan = [this, failed = false]() mutable {
        log("plan");
        if (!std::exchange(failed, true)) throw RunTimeError(70, "Permission denied: plan");
        return plan();
    };
    starter_.onStart = failingOnce("start", [this] { finish({"one"}); });
    hooks_.load = failingOnce("load", [] {});
    hooks_.keepTimeZone = failingOnce("zone", [] {});
    host_.onBox = [&] {
        const std::size_t box = host_.boxes.size();
        if (box == 2 || box == 3) std::filesystem::remove(inTheWay[box - 2]);
    };
    host_.boxAnswers.assign(6, BoxAnswer::Retry);
    run(RunForm::Single);
    EXPECT_EQ(log_, (Texts{"busy", "plan", "plan", "name one", "start", "start", "name one", "load", "load",
                           "status Finished", "exit", "idle", "zone", "zone"}));
    ASSERT_EQ(host_.boxes.size(), 6U);
    for (const std::size_t box : {1U, 2U})
        EXPECT_EQ(host_.boxes[box].text,
                  "The following error has occurred: \"Path/File access error\".  (Error Number = 75)");
}

TEST_F(ProcessorRun, ANameOfTwoLinesAddsNoCommandsToTheBatchFile) {
    base_ = "x\n\"/bin/sh\" -c evil";
    host_.boxAnswers = {BoxAnswer::Cancel};
    run(RunForm::Single);
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(
        host_.boxes[0].text,
        "The following error has occurred: \"Bad file name or number: \"x<LF>\"/bin/sh\" -c evil\" has a "
        "line end in it\".  (Error Number = 52)");
    EXPECT_TRUE(starter_.started.empty());
    EXPECT_TRUE(std::filesystem::is_empty(directory_.path())) << "nothing is written under such a name";
}

TEST_F(ProcessorRun, ADirectoryOfTwoLinesAddsNoCommandsToTheBatchFile) {
    for (const bool ofTheProgram : {false, true}) {
        const std::string evil = directory_.file("x\n\"touch\" PWNED");
        if (ofTheProgram)
            applicationDirectory = evil;
        else
            out_ = evil + "/";
        std::filesystem::create_directory(evil);
        host_.boxAnswers = {BoxAnswer::Cancel};
        run(RunForm::Single);
        ASSERT_EQ(host_.boxes.size(), 1U);
        EXPECT_NE(host_.boxes[0].text.find("x<LF>\"touch\" PWNED"), std::string::npos) << host_.boxes[0].text;
        EXPECT_TRUE(starter_.started.empty());
        std::filesystem::remove_all(evil);
        out_ = directory_.path() + "/";
        host_.boxes.clear();
    }
}

TEST_F(ProcessorRun, AStaleMarkerIsRemovedInEveryLetterCase) {
    for (const char* name : {"finished.txt", "FINISHED.TXT", "Finished.txt"}) directory_.write(name, "stale");
    starter_.onStart = [this] {
        for (const char* name : {"finished.txt", "FINISHED.TXT", "Finished.txt"})
            EXPECT_FALSE(std::filesystem::exists(directory_.file(name))) << name;
        finish({});
    };
    run(RunForm::Single);
    EXPECT_EQ(starter_.started.size(), 1U);
}

TEST_F(ProcessorRun, AnOldResultIsNotRemovedAndCounts) {
    directory_.write("one.frq", "old");
    outputs_ = {{"one", ""}};
    starter_.onStart = [this] { finish({}); };
    run(RunForm::Single);
    EXPECT_EQ(status_, "Finished");
}

TEST_F(ProcessorRun, AResultInCapitalsIsLoadedByItsRealName) {
    outputs_ = {{"one", ""}};
    starter_.onStart = [this] {
        directory_.write("ONE.FRQ", "");
        directory_.write("FINISHED.TXT", "");
    };
    run(RunForm::Single);
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "load ONE.FRQ"), 1);
}

TEST_F(ProcessorRun, BlanksAroundANameAreNoPartOfIt) {
    outputs_ = {{"one ", "1001"}, {" two  ", "1002"}};
    starter_.onStart = [this] { finish({"one", "two"}); };
    run(RunForm::Heights);
    EXPECT_EQ(log_, (Texts{"busy", "plan", "name one ", "name one ", "load one.frq", "status Finished",
                           "name  two  ", "load two.frq", "status Finished", "exit", "idle", "zone"}));
}

TEST_F(ProcessorRun, HeightsTellEachResultAndNoHeightLeavesTheLabel) {
    starter_.onStart = [this] { finish({"one", "three"}); };
    run(RunForm::Heights);
    EXPECT_EQ(log_, (Texts{"busy", "plan", "name one", "name one", "load one.frq", "status Finished",
                           "name two", "status Error has occurred.", "name three", "load three.frq",
                           "status Finished", "exit", "idle", "zone"}));
    outputs_.clear();
    run(RunForm::Heights);
    EXPECT_EQ(status_, "Running...") << "nothing is waited for";
}

TEST_F(ProcessorRun, ADirectoryRemovedDuringTheWaitOnlyMeansThatNoMarkerComes) {
    std::filesystem::create_directory(directory_.file("out"));
    out_ = directory_.file("out/");
    host_.onPump = [this] {
        if (host_.pumps == 10) std::filesystem::remove_all(directory_.file("out"));
        abandoned_ = host_.pumps >= 100;
    };
    run(RunForm::Single);
    EXPECT_EQ(host_.pumps, 100);
    EXPECT_TRUE(host_.boxes.empty());
}

TEST(AnimateRunning, TakesThreeTimes300MillisecondsHoweverLongAPumpTakes) {
    TestHost host;
    host.onPump = [&] { host.now += 70; };  // 120 ms per slice
    std::vector<std::pair<std::int64_t, std::string>> texts;
    AnimateRunning(
        host, [&](const std::string& text) { texts.emplace_back(host.now, text); }, [] { return false; });
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[1], std::pair(std::int64_t{360}, std::string("Running.. ")));
    EXPECT_EQ(texts[2], std::pair(std::int64_t{720}, std::string("Running...")));
    EXPECT_EQ(host.now, 1080);
}

TEST_F(ProcessorRun, CancelEndsTheRunWithAnEmptyStatus) {
    starter_.onStart = [this] { finish({"one", "two", "three"}); };
    hooks_.load = [](const std::string&) { throw RunTimeError(13, "Type mismatch"); };
    host_.boxAnswers = {BoxAnswer::Cancel};
    run(RunForm::Single);
    EXPECT_EQ(status_, "");
    EXPECT_EQ(log_.back(), "idle");
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "zone"), 0);
}

TEST_F(ProcessorRun, ADirectoryRemovedMeanwhileIsToldByNumber) {
    out_ = directory_.file("gone/");
    host_.boxAnswers = {BoxAnswer::Cancel};
    run(RunForm::Single);
    EXPECT_EQ(host_.boxes[0].text,
              "The following error has occurred: \"Path not found\".  (Error Number = 76)");
}

TEST_F(ProcessorRun, AWaitThatIsAbandonedEndsQuietly) {
    host_.onPump = [this] {
        if (host_.pumps == 200) abandoned_ = true;
        ASSERT_LT(host_.pumps, 210) << "the wait goes on";
    };
    run(RunForm::Stations);
    EXPECT_EQ(host_.pumps, 200);
    EXPECT_TRUE(host_.boxes.empty());
    EXPECT_EQ(std::count(log_.begin(), log_.end(), "zone"), 0);
    EXPECT_EQ(log_.back(), "idle") << "the pointer does not stay an hourglass";
}

TEST_F(ProcessorRun, ABlankInTheNameIsTheReasonOfAWaitThatDoesNotEnd) {
    base_ = "my BASE";
    host_.onPump = [this] { abandoned_ = host_.now > 5000; };
    run(RunForm::Single);
    EXPECT_EQ(
        reasons_,
        (Texts{"", "a blank in the name: the processor cannot find its control file; rename the input", ""}));
    EXPECT_TRUE(status_.starts_with("Running.")) << "the wait and its words stay";
}

TEST_F(ProcessorRun, AMissingProcessorIsTheReasonOfAWaitThatDoesNotEnd) {
    host_.onPump = [this] { abandoned_ = host_.now > 5000; };
    run(RunForm::Single);
    EXPECT_EQ(reasons_, (Texts{"", "tempoline.exe is missing in /opt/my programs", ""}));
}

TEST_F(ProcessorRun, WhatTheLauncherTellsIsShownOnceItIsKnown) {
    applicationDirectory = directory_.path();
    directory_.write("tempoline.exe", "");
    host_.onPump = [this] {
        if (host_.now >= 3000) starter_.told = "tempoline.exe ended with status 1: a.sfc, line 51: no wind";
        if (host_.now >= 9000) finish({});
    };
    outputs_ = {{"one", ""}};
    run(RunForm::Single);
    EXPECT_EQ(reasons_, (Texts{"", "tempoline.exe ended with status 1: a.sfc, line 51: no wind", ""}))
        << "it goes when the marker comes after all";
    EXPECT_EQ(status_, "Error has occurred.");
}

TEST_F(ProcessorRun, AnErrorHasTheListingsLastLineForATip) {
    outputs_ = {{"one", ""}};
    tip_ = "of the run before";
    starter_.onStart = [this] {
        EXPECT_EQ(tip_, "");
        directory_.write("BASE_tempoline.lst", "TEMPOLINE\r\n\r\nERROR: a.sfc:51: no wind\r\n");
        finish({});
    };
    run(RunForm::Single);
    EXPECT_EQ(status_, "Error has occurred.");
    EXPECT_EQ(tip_, "ERROR: a.sfc:51: no wind");
    starter_.onStart = [this] { finish({"one"}); };
    run(RunForm::Single);
    EXPECT_EQ(tip_, "");
}

TEST_F(ProcessorRun, WarningsOfAGoodRunStandUnderItsStatusUntilTheNext) {
    outputs_ = {{"one", ""}};
    starter_.onStart = [this] {
        directory_.write("BASE_tempoline.lst", "TEMPOLINE\r\nWARNING: one: far away\r\nRUN COMPLETED\r\n");
        finish({"one"});
    };
    run(RunForm::Single);
    EXPECT_EQ(status_, "Finished");
    EXPECT_EQ(reasons_, (Texts{"", "WARNING: one: far away"}));
    starter_.onStart = [this] {
        EXPECT_EQ(reasons_.back(), "");
        directory_.write("BASE_tempoline.lst", "TEMPOLINE\r\nRUN COMPLETED\r\n");
        finish({"one"});
    };
    run(RunForm::Single);
    EXPECT_EQ(reasons_.back(), "");
}

TEST_F(ProcessorRun, WarningsAreToldWhereAnyOutputWasMade) {
    const std::string warnings = "TEMPOLINE\r\nWARNING: one: far away\r\nRUN COMPLETED\r\n";
    starter_.onStart = [&] {
        directory_.write("BASE_tempoline.lst", warnings);
        finish({"one"});
    };
    run(RunForm::Heights);
    EXPECT_EQ(status_, "Error has occurred.") << "of the last one";
    EXPECT_EQ(reasons_.back(), "WARNING: one: far away");
    std::filesystem::remove(directory_.file("one.frq"));
    starter_.onStart = [&] { finish({}); };
    run(RunForm::Heights);
    EXPECT_EQ(reasons_.back(), "") << "nothing was made";
}

TEST_F(ProcessorRun, ALabelThatTellsOneResultOfManyNamesTheMissingOnesInItsTip) {
    starter_.onStart = [this] {
        directory_.write("BASE_tempoline.lst", "RUN COMPLETED\r\n");
        finish({"two"});
    };
    run(RunForm::Stations);
    EXPECT_EQ(status_, "Finished");
    EXPECT_EQ(tip_, "No FRQ file for one, three: RUN COMPLETED");
}

/// Another process that holds the lock of the directory until it is ended.
class OtherWindow {
 public:
    explicit OtherWindow(const std::string& directory) {
        int ends[2] = {};
        EXPECT_EQ(pipe(ends), 0);
        process_ = fork();
        if (process_ == 0) {
            const auto lock = RunLock::take(directory);
            if (write(ends[1], "x", 1) == 1)
                for (;;) pause();
            _exit(1);
        }
        char sign = 0;
        EXPECT_EQ(read(ends[0], &sign, 1), 1);
        close(ends[0]);
        close(ends[1]);
    }
    ~OtherWindow() {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;

 private:
    pid_t process_ = 0;
};

TEST_F(ProcessorRun, WhereAnotherWindowWaitsNothingIsTouched) {
    const OtherWindow other(directory_.path() + "/");
    directory_.write("finished.txt", "the other's");
    directory_.write("run_tempoline.bat", "the other's");
    host_.boxAnswers = {BoxAnswer::No};
    run(RunForm::Single);
    ASSERT_EQ(host_.boxes.size(), 1U);
    EXPECT_EQ(host_.boxes[0].text,
              "Another window waits for a run in " + directory_.path() +
                  "/. A second run there would take its files away.\n\nWould you like to "
                  "choose another output directory?");
    EXPECT_EQ(host_.boxes[0].buttons, BoxButtons::YesNo);
    EXPECT_EQ(directory_.read("finished.txt"), "the other's");
    EXPECT_EQ(directory_.read("run_tempoline.bat"), "the other's");
    EXPECT_EQ(log_, (Texts{"busy", "plan", "idle", "status ", "idle"}));
    EXPECT_TRUE(starter_.started.empty());
}

TEST_F(ProcessorRun, AnotherDirectoryMayBeChosenWhereAnotherWindowWaits) {
    const OtherWindow other(directory_.path() + "/");
    const TempDirectory elsewhere;
    hooks_.chooseDirectory = [&] {
        out_ = elsewhere.path() + "/";
        return true;
    };
    host_.boxAnswers = {BoxAnswer::Yes};
    outputs_ = {{"one", ""}};
    starter_.onStart = [&] {
        elsewhere.write("one.frq", "");
        elsewhere.write("finished.txt", "");
    };
    hooks_.load = [this](const std::string&) { log("load"); };
    run(RunForm::Single);
    EXPECT_EQ(starter_.started, Texts{elsewhere.file("run_tempoline.bat")});
    EXPECT_EQ(status_, "Finished");
    EXPECT_FALSE(std::filesystem::exists(directory_.file("run_tempoline.bat")));
    EXPECT_FALSE(std::filesystem::exists(elsewhere.file("run_tempoline.lock"))) << "gone with the wait";
}

TEST_F(ProcessorRun, NoOtherDirectoryChosenEndsTheRun) {
    const OtherWindow other(directory_.path() + "/");
    hooks_.chooseDirectory = [] { return false; };
    host_.boxAnswers = {BoxAnswer::Yes};
    run(RunForm::Heights);
    EXPECT_TRUE(starter_.started.empty());
    EXPECT_EQ(status_, "");
}

TEST_F(ProcessorRun, ASecondRunOfTheSameWindowStartsAsItAlwaysDid) {
    outputs_ = {{"one", ""}};
    starter_.onStart = [this] {
        if (starter_.started.size() == 1) run(RunForm::Single);
        finish({"one"});
    };
    run(RunForm::Single);
    EXPECT_EQ(starter_.started.size(), 2U);
    EXPECT_EQ(status_, "Finished");
}

TEST_F(ProcessorRun, TheNameOfTheWholeRunIsOnShowAtTheEndWhereThereIsOne) {
    hooks_.plan = [this] {
        RunPlan named = plan();
        named.lastName = "all";
        return named;
    };
    starter_.onStart = [this] { finish({"one", "two", "three"}); };
    run(RunForm::Heights);
    EXPECT_EQ(*(std::find(log_.begin(), log_.end(), "exit") - 1), "name all");
}

TEST_F(ProcessorRun, ARunGoesOnWithItsOwnValuesWhateverAnotherBeginsWithMeanwhile) {
    std::filesystem::create_directory(directory_.file("second"));
    const auto second = [this] {
        out_ = directory_.file("second/");
        base_ = "SECOND";
        outputs_ = {{"four", "1004"}};
        run(RunForm::Single);
    };
    starter_.onStart = [&] {
        if (starter_.started.size() == 1) return;
        directory_.write("second/four.frq", "");
        directory_.write("second/finished.txt", "");
    };
    bool begun = false;
    host_.onPump = [&] {
        if (host_.pumps < 5 || std::exchange(begun, true)) return;
        second();
        finish({"one", "three"});
        directory_.write("BASE_tempoline.lst", "of the first\r\n");
    };
    run(RunForm::Stations);
    std::erase_if(log_, [](const std::string& text) { return !text.starts_with("load "); });
    EXPECT_EQ(log_, (Texts{"load second/four.frq", "load one.frq", "load three.frq"}));
    EXPECT_EQ(tip_, "No FRQ file for two: of the first");
    EXPECT_EQ(starter_.started,
              (Texts{directory_.file("run_tempoline.bat"), directory_.file("second/run_tempoline.bat")}));
    EXPECT_TRUE(std::filesystem::exists(directory_.file("BASE_tempoline.inp")));
    EXPECT_TRUE(std::filesystem::exists(directory_.file("second/SECOND_tempoline.inp")));
}

}  // namespace
}  // namespace zg
