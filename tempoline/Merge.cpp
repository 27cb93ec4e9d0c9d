#include "tempoline/Merge.h"

#include <algorithm>
#include <cstdio>
#include <tuple>

#include "base/Files.h"
#include "tempoline/Failure.h"
#include "tempoline/FrqWriter.h"
#include "tempoline/Interrupt.h"
#include "tempoline/ListingName.h"
#include "tempoline/OlderResults.h"
#include "tempoline/OutputFile.h"
#include "tempoline/TabFile.h"
#include "tempoline/WholeText.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t longestTab = std::size_t{64} << 20;

Failure differs(const std::string& sumFile, const std::string& partFile, const std::string& what) {
    return {ExitStatus::Failed, partFile + ": " + what + " differ from those of " + sumFile};
}

RoseReport readTabFile(const std::string& file) {
    return readTab(wholeText(file, longestTab, "a TAB file"), file);
}

void addRose(RoseCounts& sum, const RoseCounts& part) {
    sum.total += part.total;
    sum.valid += part.valid;
    sum.calm += part.calm;
    for (std::size_t sector = 0; sector < sectorCount; ++sector) {
        for (std::size_t i = 0; i < classCount; ++i) sum.cells[sector][i] += part.cells[sector][i];
    }
}

RoseReport sumOf(const std::vector<std::string>& files) {
    RoseReport sum = readTabFile(files.at(0));
    for (std::size_t i = 1; i < files.size(); ++i) addCounts(sum, readTabFile(files[i]), files[0], files[i]);
    needDistinctRuns(sum.runs);
    return sum;
}

/// Older results are kept in files of that name, which may be replaced before they are read and are removed
/// afterwards, so they cannot be an input.
void needNoneAside(const std::vector<std::string>& files, const std::string& name, const ResultSet& results) {
    if (isKeptForOlder(name))
        throw Failure(ExitStatus::BadControl,
                      "--out: \"" + name + "\" is a name under which older results are kept");
    for (const std::string& file : files)
        for (const std::string& result : results)
            if (isSameFile(file, asideName(result)))
                throw Failure(ExitStatus::BadControl,
                              file + ": older results of \"" + name + "\" are kept under this name");
}

/// Moves older results aside. Returns the input files by their new names, since some of them may be older
/// results.
std::vector<std::string> moveAside(std::vector<std::string> files, const ResultSet& results,
                                   OlderResults& older) {
    std::vector<std::pair<std::string*, std::string>> own;
    for (std::string& file : files)
        for (const std::string& result : results)
            if (stateOfFile(file) && isSameFile(file, result)) own.emplace_back(&file, asideName(result));
    const std::string fault = older.putAside({results});
    if (!fault.empty()) throw Failure(ExitStatus::Failed, fault);
    for (const auto& [file, aside] : own)
        if (!stateOfFile(*file)) *file = aside;
    return files;
}

}  // namespace

void addCounts(RoseReport& sum, const RoseReport& part, const std::string& sumFile,
               const std::string& partFile) {
    if (part.step != sum.step) throw differs(sumFile, partFile, "the seconds of a step");
    if (part.zone != sum.zone) throw differs(sumFile, partFile, "the hours of the zone");
    if (part.height != sum.height) throw differs(sumFile, partFile, "the metres of the height");
    if (part.rules.classLimits != sum.rules.classLimits)
        throw differs(sumFile, partFile, "the limits of the classes");
    if (part.rules.seasonOfMonth != sum.rules.seasonOfMonth)
        throw differs(sumFile, partFile, "the months of the seasons");
    const auto sameRose = [](const RoseCounts& a, const RoseCounts& b) {
        return a.key == b.key && a.title == b.title;
    };
    if (!std::equal(sum.roses.begin(), sum.roses.end(), part.roses.begin(), part.roses.end(), sameRose))
        throw differs(sumFile, partFile, "the roses");
    for (std::size_t i = 0; i < sum.roses.size(); ++i) addRose(sum.roses[i], part.roses[i]);
    sum.begin = std::min(sum.begin, part.begin);
    sum.end = std::max(sum.end, part.end);
    sum.hasRecords = sum.hasRecords || part.hasRecords;
    if (part.title1 != sum.title1) sum.title1 = "Several stations";
    if (part.title2 != sum.title2) sum.title2 = "Joined runs";
    sum.runs.insert(sum.runs.end(), part.runs.begin(), part.runs.end());
}

void needDistinctRuns(std::vector<CountedRun> runs) {
    std::sort(runs.begin(), runs.end(), [](const CountedRun& a, const CountedRun& b) {
        return std::tie(a.what, a.begin, a.end) < std::tie(b.what, b.begin, b.end);
    });
    for (std::size_t i = 1; i < runs.size(); ++i) {
        if (runs[i].what == runs[i - 1].what && runs[i].begin < runs[i - 1].end)
            throw Failure(ExitStatus::Failed, "the same winds would be counted twice: " + runs[i].what +
                                                  " from " + isoText(runs[i].begin) + " to " +
                                                  isoText(std::min(runs[i].end, runs[i - 1].end)));
    }
}

void mergeTabs(const std::vector<std::string>& files, const std::string& name) {
    const ResultSet results = {name + ".tab", name + ".frq"};
    needNoneAside(files, name, results);
    const std::shared_ptr<Temporaries> temporaries = Temporaries::ofThisRun();
    temporaries->removeRemains();
    OlderResults older;
    try {
        const std::vector<std::string> sources = moveAside(files, results, older);
        OutputFile tab(results[0]);
        OutputFile frq(results[1]);
        const RoseReport sum = sumOf(sources);
        tab.write(tabText(sum));
        frq.write(frqText(sum));
        tab.finish();
        frq.finish();
        throwIfInterrupted();
        moveAside({}, results, older);  // meanwhile another run may have written results with this name
        OutputFile::commitAll({&tab, &frq});
    } catch (...) {
        const std::string kept = keptText(older.kept());
        if (!kept.empty()) std::fprintf(stderr, "tempoline: %s\n", kept.c_str());
        throw;
    }
    older.remove();
}

}  // namespace zg::tempoline
