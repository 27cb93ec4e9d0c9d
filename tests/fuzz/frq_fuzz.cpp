// Any bytes through the FRQ loader: it loads them, refuses them or raises a run-time error, and the tables
// remain usable. Nothing is written to disk.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/RunTimeError.h"
#include "graph/frq/ClassLimits.h"
#include "graph/frq/FreqBlock.h"
#include "graph/frq/OpenFreqFile.h"
#include "tests/fuzz/Fuzz.h"

namespace {

/// Accepts the message of a refused file; nothing else may be asked.
class RefusalHost : public zg::Host {
 public:
    zg::BoxAnswer showBox(const zg::MessageBox& box) override {
        if (!box.text.starts_with("The FRQ File ")) std::abort();
        ++boxes;
        return zg::BoxAnswer::Ok;
    }
    std::string pickFileToOpen(const zg::FilePick&) override { std::abort(); }
    std::string pickFileToSave(const zg::FilePick&) override { std::abort(); }
    std::vector<std::string> pickFilesToOpen(const zg::FilePick&) override { std::abort(); }
    std::string pickFolder(const zg::FolderPick&) override { std::abort(); }
    std::optional<zg::Colour> pickColour(zg::Colour) override { return {}; }
    std::optional<zg::FontRecord> pickFont(const zg::FontRecord&) override { return {}; }
    std::int64_t tickCount() override { return 0; }
    void pumpEvents(int) override {}

    int boxes = 0;
};

void check(bool holds) {
    if (!holds) std::abort();
}

/// What every reader of the tables relies on after a load.
void checkLoaded(const zg::ModPolarGraph& tables) {
    const std::size_t size = static_cast<std::size_t>(tables.FrqRoseCount) + 1;
    check(tables.FrqLoaded && tables.FrqRoseCount >= 0 && tables.CurrentRose == 1);
    check(tables.FrqFraction.rows() == tables.FrqLineCount + 1);
    check(tables.FrqRoseTitle.size() == size && tables.FrqRoseCaption.size() == size);
    check(tables.FrqCalmPercent.size() == size && tables.FrqDirectionLabel.size() == 17);
    check(tables.FrqTotalPeriods.size() == (tables.FrqVersion == "2.0" ? 0 : size));
    const std::int64_t lastRow = zg::fractionRow(tables.FrqRoseCount, zg::freqDirections);
    check(tables.FrqRoseCount == 0 || lastRow < tables.FrqFraction.rows());
    for (std::int64_t rose = 1; rose <= tables.FrqRoseCount; ++rose)
        for (std::int64_t c = 0; c < 7; ++c) check(tables.FrqFraction(17 * rose, c) == 0);
}

}  // namespace

FUZZ_TARGET(frq) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    zg::ModPolarGraph tables;
    RefusalHost host;
    try {
        const auto outcome =
            zg::loadFreqLines([bytes] { return zg::LineReader::ofText(bytes); }, "input", tables, host);
        check((outcome == zg::FreqFileOutcome::Refused) == (host.boxes == 1));
        if (outcome == zg::FreqFileOutcome::Loaded) checkLoaded(tables);
        zg::rebuildLegendLimits(tables);
        if (tables.FrqLoaded) zg::buildKnotTable(tables);
    } catch (const zg::RunTimeError&) {
        check(tables.CurrentRose == 1);
    }
    return 0;
}
