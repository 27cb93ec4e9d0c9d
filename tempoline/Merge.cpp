#include "tempoline/Merge.h"

#include <algorithm>
#include <tuple>

#include "tempoline/Failure.h"
#include "tempoline/FrqWriter.h"
#include "tempoline/Interrupt.h"
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
    OutputFile frq(name + ".frq");
    OutputFile tab(name + ".tab");
    RoseReport sum = readTabFile(files.at(0));
    for (std::size_t i = 1; i < files.size(); ++i) addCounts(sum, readTabFile(files[i]), files[0], files[i]);
    needDistinctRuns(sum.runs);
    frq.write(frqText(sum));
    tab.write(tabText(sum));
    frq.finish();
    tab.finish();
    throwIfInterrupted();
    OutputFile::commitAll({&tab, &frq});
}

}  // namespace zg::tempoline
