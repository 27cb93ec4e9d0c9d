// What a run leaves of older results, and under which names: after success, failure, or being killed at any
// step.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <map>
#include <set>

#include "tempoline/Interrupt.h"
#include "tempoline/Merge.h"
#include "tempoline/Run.h"
#include "tests/tempoline/FileCalls.h"
#include "tests/tempoline/RunSupport.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

using Changes = std::vector<std::pair<std::string, std::string>>;
using Results = std::map<std::string, std::string>;  // extension, such as "frq", and contents

const std::string runListing = "base_20050307-20051231_tempoline.lst";
const std::vector<std::string> resultEndings = {"tsf", "tab", "frq"};

void writeControl(const InDirectory& inside, const std::string& file, const Changes& changes,
                  const std::string& name = "c.inp") {
    Changes all = firstDay;
    all.emplace_back("METINP", "in.dat");
    all.insert(all.end(), changes.begin(), changes.end());
    inside.directory.write(name, control(file, all));
}

/// The usual one, made only once.
void writeControl(const InDirectory& inside) {
    static const std::string text = [] {
        const InDirectory other;
        writeControl(other, "aermsfc.inp", {});
        return other.directory.read("c.inp");
    }();
    inside.directory.write("c.inp", text);
}

void writeData(const InDirectory& inside, const std::string& speed) {
    inside.directory.write("in.dat", "header\n2004 1 1 1 1 0 0 0 0 0 0 0 0 0 0 " + speed + " 90.0 10.0\n");
}

struct Ended {
    ExitStatus status;
    std::string error;
};

Ended runHere(const std::string& name = "c.inp") {
    testing::internal::CaptureStderr();
    const ExitStatus status = run(name);
    return {status, testing::internal::GetCapturedStderr()};
}

std::string listingHere() { return readWholeFile(runListing); }

std::set<std::string> allNames() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator("."))
        names.insert(entry.path().filename().string());
    return names;
}

Results resultsHere(const std::string& name) {
    Results results;
    for (const std::string& ending : resultEndings)
        if (std::filesystem::exists(name + "." + ending))
            results[ending] = readWholeFile(name + "." + ending);
    return results;
}

/// The results of a run over that wind.
Results made(const std::string& speed) {
    const InDirectory inside;
    writeControl(inside);
    writeData(inside, speed);
    EXPECT_EQ(run("c.inp"), ExitStatus::Completed);
    return resultsHere("out");
}

/// Runs the work in a process that is killed before its step of that number; false if it finished.
template <typename Work>
bool isKilledBefore(int step, Work work) {
    const pid_t child = fork();
    if (child == 0) {
        if (std::freopen("/dev/null", "w", stderr) == nullptr) _exit(1);
        FileCalls::before(step, [] { kill(getpid(), SIGKILL); });
        work();
        _exit(0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) || WTERMSIG(status) == SIGKILL);
    return WIFSIGNALED(status);
}

/// One of those generations of results is complete: that of the FRQ file, under its own name or aside. Files
/// of superseded generations may exist too.
::testing::AssertionResult oneIsWhole(const std::vector<Results>& generations,
                                      const Results& superseded = {}) {
    const Results own = resultsHere("out");
    const Results aside = resultsHere("out.previous");
    const auto standsAs = [](const Results& here, const std::string& ending, const Results& there) {
        return here.count(ending) == 1 && here.at(ending) == there.at(ending);
    };
    for (const Results& all : {own, aside})
        for (const auto& [ending, content] : all) {
            bool known = superseded.count(ending) == 1 && superseded.at(ending) == content;
            for (const Results& one : generations) known = known || one.at(ending) == content;
            if (!known) return ::testing::AssertionFailure() << "half a result of the kind " << ending;
        }
    for (const Results& one : generations) {
        if (own.count("frq") == 1 ? !standsAs(own, "frq", one) : !standsAs(aside, "frq", one)) continue;
        bool whole = true;
        for (const std::string& ending : resultEndings)
            whole = whole && (standsAs(own, ending, one) || standsAs(aside, ending, one));
        if (whole) return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "no results are whole";
}

void writeResults(const InDirectory& inside, const Results& results, const std::string& name = "out") {
    for (const auto& [ending, content] : results) inside.directory.write(name + "." + ending, content);
}

}  // namespace

TEST(RunResults, AfterAFailedRunNoOlderRoseHasItsName) {
    const Results good = made("4.0");
    const InDirectory inside;
    writeControl(inside);
    writeData(inside, "fast");
    writeResults(inside, good);
    for (int i = 0; i < 2; ++i) {  // the second failure keeps them too
        const Ended failed = runHere();
        EXPECT_EQ(failed.status, ExitStatus::Failed);
        EXPECT_EQ(failed.error,
                  "tempoline: the results of an earlier run are kept as out.previous.frq, out.previous.tab, "
                  "out.previous.tsf\n"
                  "tempoline: in.dat:2: wind speed: \"fast\" is no number\n");
        EXPECT_EQ(resultsHere("out"), Results{});
        EXPECT_EQ(resultsHere("out.previous"), good);
        EXPECT_NE(
            listingHere().find("\r\nThe results of an earlier run are kept as\r\n  out.previous.frq\r\n  "
                               "out.previous.tab\r\n  out.previous.tsf\r\n\r\nERROR: in.dat:2: "),
            std::string::npos);
    }
    writeData(inside, "9.0");
    EXPECT_EQ(runHere().status, ExitStatus::Completed);
    EXPECT_EQ(resultsHere("out"), made("9.0"));
    EXPECT_EQ(resultsHere("out.previous"), Results{});
    EXPECT_EQ(allNames().size(), 6U);
}

TEST(RunResults, ARefusedControlFileMovesThemAsideToo) {
    const Results good = made("4.0");
    for (const Changes& fault : {Changes{{"ABTZ", "EST"}}, Changes{{"WSBIN", "1, 2"}},
                                 Changes{{"MDATA", "M2D"}}, Changes{{"IEYR", "2003"}}}) {
        const InDirectory inside;
        writeControl(inside, "aermsfc.inp", fault);
        writeResults(inside, good);
        EXPECT_EQ(runHere().status, ExitStatus::BadControl);
        EXPECT_EQ(resultsHere("out"), Results{}) << fault[0].first;
        EXPECT_EQ(resultsHere("out.previous"), good);
        EXPECT_NE(listingHere().find("  out.previous.frq\r\n"), std::string::npos);
    }
}

TEST(RunResults, OfARunThatMakesNoRosesTheRosesStay) {
    const InDirectory inside;
    writeControl(inside, "aermsfc.inp", {{"MROSE", "0"}});
    writeData(inside, "4.0");
    inside.directory.write("out.frq", "old");
    inside.directory.write("out.previous.frq", "older");
    inside.directory.write("out.tsf", "old");
    EXPECT_EQ(runHere().status, ExitStatus::Completed);
    EXPECT_EQ(inside.directory.read("out.frq"), "old");
    EXPECT_EQ(inside.directory.read("out.previous.frq"), "older");
    EXPECT_NE(inside.directory.read("out.tsf"), "old");
}

TEST(RunResults, ARoseOfASeriesLeavesTheSeries) {
    const Results good = made("4.0");
    const InDirectory inside;
    writeControl(inside, "tsf.inp", {{"METINP", "out.tsf"}, {"ROSEPLT", "out"}});
    writeResults(inside, good);
    EXPECT_EQ(runHere().status, ExitStatus::Completed);
    EXPECT_EQ(resultsHere("out").at("tsf"), good.at("tsf"));
    inside.directory.write("out.tsf", "broken");
    const Results roses = resultsHere("out");
    EXPECT_EQ(runHere().status, ExitStatus::Failed);
    EXPECT_EQ(resultsHere("out"), (Results{{"tsf", "broken"}}));
    EXPECT_EQ(resultsHere("out.previous"), (Results{{"frq", roses.at("frq")}, {"tab", roses.at("tab")}}));
}

TEST(RunResults, KilledAtAnyStepTheOlderOnesAreUnderOneOfTheirNames) {
    const std::vector<Results> generations = {made("4.0"), made("9.0")};
    bool killed = true;
    int step = 0;
    while (killed) {
        const InDirectory inside;
        writeControl(inside);
        writeData(inside, "9.0");
        writeResults(inside, generations[0]);
        killed = isKilledBefore(++step, [] { run("c.inp"); });
        EXPECT_TRUE(oneIsWhole(generations)) << "killed before step " << step;
        EXPECT_EQ(runHere().status, ExitStatus::Completed);
        EXPECT_EQ(resultsHere("out"), generations[1]);
        EXPECT_EQ(allNames(),
                  (std::set<std::string>{runListing, "c.inp", "in.dat", "out.frq", "out.tab", "out.tsf"}))
            << "killed before step " << step;
    }
    EXPECT_GT(step, 15);
}

TEST(RunResults, KilledTwiceAtAnyStepsOneOfThemIsWhole) {
    const std::vector<Results> generations = {made("4.0"), made("9.0"), made("1.0")};
    const Results older = made("6.0");
    bool killed = true;
    for (int first = 1; killed; ++first) {
        bool killedAgain = true;
        for (int second = 1 + first % 3; killedAgain; second += 3) {  // each occurs with some first ones
            const InDirectory inside;
            writeControl(inside);
            writeResults(inside, older, "out.previous");
            writeResults(inside, generations[0]);
            writeData(inside, "9.0");
            killed = isKilledBefore(first, [] { run("c.inp"); });
            writeData(inside, "1.0");
            killedAgain = isKilledBefore(second, [] { run("c.inp"); });
            ASSERT_TRUE(oneIsWhole(generations, older))
                << "killed before steps " << first << " and " << second;
        }
    }
}

TEST(RunResults, AFailedRunKilledAtAnyStepKeepsThem) {
    const std::vector<Results> generations = {made("4.0")};
    bool killed = true;
    for (int step = 1; killed; ++step) {
        const InDirectory inside;
        writeControl(inside);
        writeData(inside, "fast");
        writeResults(inside, generations[0]);
        killed = isKilledBefore(step, [] { run("c.inp"); });
        EXPECT_TRUE(oneIsWhole(generations)) << "killed before step " << step;
    }
    EXPECT_FALSE(killed);
}

TEST(RunResults, AKilledRunIsToldByItsListing) {
    const InDirectory inside;
    writeControl(inside);
    writeData(inside, "4.0");
    int step = 1;
    while (!std::filesystem::exists(runListing)) isKilledBefore(step++, [] { run("c.inp"); });
    const std::string listing = listingHere();
    EXPECT_EQ(listing.substr(listing.find("ERROR")), "ERROR: the run goes on, or was ended from outside\r\n");
}

TEST(RunResults, TwoOutputsOfOneNameAreRefusedWithBothLines) {
    const InDirectory inside;
    std::string text = control("surf.inp", {{"NTSFOUT", "2"}});
    text = std::regex_replace(text, std::regex("TSFOUT = [^!]*!   !END!"), "TSFOUT = Same !   !END!");
    inside.directory.write("c.inp", text);
    inside.directory.write("Same.frq", "old");
    const Ended refused = runHere();
    EXPECT_EQ(refused.status, ExitStatus::BadControl);
    EXPECT_TRUE(std::regex_search(refused.error,
                                  std::regex("\ntempoline: c\\.inp:\\d+: TSFOUT: the name \"Same\" has "
                                             "been given in line \\d+: each output needs one of its "
                                             "own\n$")))
        << refused.error;
    EXPECT_EQ(inside.directory.read("Same.previous.frq"), "old");
    EXPECT_FALSE(std::filesystem::exists("Same.frq"));
}

TEST(RunResults, NamesThatTheFileSystemTakesForOneAreRefused) {
    const auto outcome = [](const std::string& second, bool blind) {
        const InDirectory inside;
        std::string text = control("surf.inp", {{"NTSFOUT", "2"}});
        const std::regex name("TSFOUT = [^!]*!   !END!");
        text = std::regex_replace(text, name, "TSFOUT = St\xC3\xA4rke 1 !   !END!",
                                  std::regex_constants::format_first_only);
        const std::size_t rest = text.find("St\xC3\xA4rke") + 10;
        text = text.substr(0, rest) +
               std::regex_replace(text.substr(rest), name, "TSFOUT = " + second + " !   !END!");
        inside.directory.write("c.inp", text);
        FileCalls::beBlindToCase(blind);
        const Ended refused = runHere();
        FileCalls::beBlindToCase(false);
        for (const std::string& left : allNames()) EXPECT_NE(left.substr(0, 10), ".tempoline") << left;
        return refused.error;
    };
    EXPECT_TRUE(std::regex_search(outcome("st\xC3\xA4rke 1", true),
                                  std::regex("c\\.inp:\\d+: TSFOUT: the name \"st\xC3\xA4rke 1\" is one with "
                                             "\"St\xC3\xA4rke 1\" in line \\d+: ")));
    // if the names differ, or only look alike, the run goes on to its data
    EXPECT_NE(outcome("st\xC3\xA4rke 1", false).find("No such file"), std::string::npos);
    EXPECT_NE(outcome("st\xC3\xB6rke 1", true).find("No such file"), std::string::npos);
}

TEST(RunResults, AControlFileOfTheNameOfAResultIsRefused) {
    for (const char* const name : {"out.frq", "out.tab", "out.tsf", "./out.frq", "out.previous.frq"}) {
        const InDirectory inside;
        writeControl(inside, "aermsfc.inp", {}, name);
        const std::string before = inside.directory.read(name);
        writeData(inside, "4.0");
        const Ended refused = runHere(name);
        EXPECT_EQ(refused.status, ExitStatus::BadControl);
        const std::string plain = std::filesystem::path(name).filename();
        const bool aside = plain == "out.previous.frq";
        EXPECT_EQ(refused.error, std::string("tempoline: the ") + (aside ? "older result" : "result") +
                                     " \"" + plain + "\" would take the place of the control file\n");
        EXPECT_EQ(inside.directory.read(name), before);
    }
}

TEST(RunResults, AnInputOfTheNameOfAnOlderResultIsRefused) {
    const InDirectory inside;
    writeControl(inside, "aermsfc.inp", {{"METINP", "out.previous.tsf"}});
    inside.directory.write("out.previous.tsf", "data");
    inside.directory.write("out.frq", "old");
    const Ended refused = runHere();
    EXPECT_EQ(refused.status, ExitStatus::BadControl);
    EXPECT_NE(refused.error.find("the older result \"out.previous.tsf\" would take the place of an input\n"),
              std::string::npos);
    EXPECT_EQ(inside.directory.read("out.previous.tsf"), "data");
    EXPECT_EQ(inside.directory.read("out.previous.frq"), "old");
}

TEST(RunResults, AnOutputOfANameForOlderResultsIsRefused) {
    const InDirectory inside;
    writeControl(inside, "aermsfc.inp", {{"TSFOUT", "out.previous"}});
    writeData(inside, "4.0");
    EXPECT_TRUE(std::regex_search(runHere().error,
                                  std::regex("c\\.inp:\\d+: TSFOUT: \"out\\.previous\" is a name under "
                                             "which older results are kept\n")));
}

TEST(RunResults, APeriodThatTheDataCannotFillIsRefusedBeforeAnythingIsWritten) {
    const InDirectory inside;
    writeControl(inside, "aermsfc.inp", {{"IEYR", "9999"}});
    writeData(inside, "4.0");
    const Ended refused = runHere();
    EXPECT_EQ(refused.status, ExitStatus::BadControl);
    EXPECT_TRUE(std::regex_search(
        refused.error,
        std::regex("c\\.inp:\\d+: IEYR: the period has 70082760 steps, more than 10 times as many as "
                   "54 bytes of data can fill\n")))
        << refused.error;
    EXPECT_EQ(allNames().size(), 3U);
    writeControl(inside, "aermsfc.inp", {{"IEYR", "2099"}});
    EXPECT_EQ(runHere().status, ExitStatus::Completed) << "a century may be empty";
}

TEST(RunResults, AFailedMergeLeavesNoneOfItsName) {
    const InDirectory inside;
    writeControl(inside, "aermsfc.inp", {{"TSFOUT", "part"}});
    writeData(inside, "4.0");
    ASSERT_EQ(runHere().status, ExitStatus::Completed);
    mergeTabs({"part.tab"}, "sum");
    const std::string good = inside.directory.read("sum.frq");
    const auto fails = [](const std::vector<std::string>& files, const std::string& name,
                          ExitStatus status = ExitStatus::Failed) {
        testing::internal::CaptureStderr();
        const std::string failure = failureOf([&] { mergeTabs(files, name); }, status);
        return testing::internal::GetCapturedStderr() + failure;
    };
    EXPECT_EQ(fails({"part.tab", "none.tab"}, "sum"),
              "tempoline: the results of an earlier run are kept as sum.previous.frq, sum.previous.tab\n"
              "none.tab: No such file or directory");
    EXPECT_FALSE(std::filesystem::exists("sum.frq"));
    EXPECT_EQ(inside.directory.read("sum.previous.frq"), good);
    EXPECT_EQ(fails({"sum.previous.tab"}, "sum", ExitStatus::BadControl),
              "sum.previous.tab: older results of \"sum\" are kept under this name");
    EXPECT_EQ(fails({"part.tab"}, "sum.previous", ExitStatus::BadControl),
              "--out: \"sum.previous\" is a name under which older results are kept");
    mergeTabs({"part.tab"}, "sum");
    EXPECT_EQ(inside.directory.read("sum.frq"), good);
    EXPECT_FALSE(std::filesystem::exists("sum.previous.frq"));
    mergeTabs({"sum.tab"}, "sum");  // a sum of itself
    EXPECT_EQ(inside.directory.read("sum.frq"), good);
    EXPECT_FALSE(std::filesystem::exists("sum.previous.tab"));
}

TEST(RunResults, AnInterruptLeavesOldResultsWholeAndAside) {
    const InDirectory inside;
    inside.directory.write("in.sfc", "header\n");
    inside.directory.write("out.frq", "old");
    auto changes = firstDay;
    changes.emplace_back("METINP", "in.sfc");
    inside.directory.write("c.inp", control("aermsfc.inp", changes));
    FileCalls::before(6, [] { setInterrupted(true); });
    testing::internal::CaptureStderr();
    EXPECT_EQ(run("c.inp"), ExitStatus::Interrupted);
    setInterrupted(false);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "tempoline: the results of an earlier run are kept as out.previous.frq\n"
              "tempoline: interrupted\n");
    EXPECT_EQ(inside.directory.read("out.previous.frq"), "old");
    EXPECT_EQ(run("c.inp"), ExitStatus::Completed);
    EXPECT_NE(inside.directory.read("out.frq"), "old");
    EXPECT_FALSE(std::filesystem::exists("out.previous.frq"));
}

}  // namespace zg::tempoline
