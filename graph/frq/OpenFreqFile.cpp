#include "graph/frq/OpenFreqFile.h"

#include <array>
#include <utility>

#include "base/Numbers.h"
#include "graph/frq/FreqBlock.h"
#include "graph/frq/FreqFault.h"
#include "graph/frq/FreqHeader.h"
#include "graph/frq/FreqVersion.h"

namespace zg {

namespace {

/// A refused file stays open; every load opens its own. Only the last few remain open to the end of the
/// process: a directory of a thousand refused files must leave file handles for the following ones.
void keepOpen(FileHandle file) {
    constexpr std::size_t mostKept = 16;
    static std::array<FileHandle, mostKept> refusedFiles;
    static std::size_t next = 0;
    if (file) refusedFiles[next++ % mostKept] = std::move(file);
}

void tellRefused(const std::string& path, Host& host) {
    MessageBox box;
    box.text = "The FRQ File " + path + " is not in the correct data format.";
    host.showBox(box);
}

/// Number of lines in the file plus one; raises 6 if that exceeds 16 bits.
std::int16_t countLines(LineReader reader) {
    const std::size_t lines = reader.skipAll();
    try {
        return toInt16(static_cast<double>(lines + 1));
    } catch (RunTimeError& error) {
        error.where = "32767: at most 32766 lines, found " + std::to_string(lines);
        reader.addPlace(error);
        throw;
    }
}

std::int16_t roseCount(std::int16_t lineCount, const FreqHeaderSize& header, const FreqVersion& version) {
    const double blockLines = static_cast<double>(lineCount) - static_cast<double>(header.lines);
    return toInt16(blockLines / version.linesARose);
}

/// Raises 9 if the header claims more lines than the file has.
void needHeader(const LineReader& reader, const FreqHeaderSize& header, const ModPolarGraph& tables) {
    if (tables.FrqRoseCount >= 0) return;
    RunTimeError error(static_cast<int>(ErrorNumber::SubscriptOutOfRange),
                       errorDescription(ErrorNumber::SubscriptOutOfRange));
    error.where = "2: " + std::to_string(header.leadCount) + " header lines, found " +
                  freqNumber(static_cast<std::size_t>(tables.FrqLineCount - 3));
    reader.addPlace(error);
    throw error;
}

/// Fresh tables for the counted roses.
void sizeRoseTables(const FreqVersion& version, ModPolarGraph& tables) {
    const auto last = static_cast<std::size_t>(tables.FrqRoseCount);
    if (version.statistics == FreqStatistics::Present) {
        tables.FrqTotalPeriods.redim(last);
        tables.FrqValidPeriods.redim(last);
        tables.FrqCalmPeriods.redim(last);
        tables.FrqPercentValid.redim(last);
    } else {
        tables.FrqTotalPeriods.clear();
        tables.FrqValidPeriods.clear();
        tables.FrqCalmPeriods.clear();
        tables.FrqPercentValid.clear();
    }
    tables.FrqCalmPercent.redim(last);
    tables.FrqRoseCaption.redim(last);
    tables.FrqRoseTitle.redim(last);
    tables.FrqDirectionLabel.redim(static_cast<std::size_t>(freqDirections));
}

/// Runs a pass over the file; adds the file and the number of the last line read to an error.
template <typename Pass>
void withLine(LineReader& reader, Pass pass) {
    try {
        pass();
    } catch (RunTimeError& error) {
        reader.addPlace(error);
        throw;
    }
}

void forgetClassChoices(ModPolarGraph& tables) {
    tables.ClassesFromFile = true;
    tables.ClassesInKnots = false;
    tables.KnotTableReady = false;
}

void readContent(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& header,
                 ModPolarGraph& tables) {
    reader.readLine();
    readFreqHeaderFields(reader, version, header, tables);
    forgetClassChoices(tables);
    skipFreqHeaderRest(reader, version, header);
    for (std::int16_t rose = 1; rose <= tables.FrqRoseCount; ++rose)
        readFreqBlock(reader, version, rose, tables);
}

void makePlotTexts(ModPolarGraph& tables) {
    tables.GraphTitle =
        tables.FrqTitle1.empty() ? tables.FrqTitle2 : tables.FrqTitle1 + " - " + tables.FrqTitle2;
    tables.GraphSubTitle = tables.FrqMeasure + "; [" + tables.FrqPeriodText + "]";
    tables.GraphCaption = tables.FrqRoseCount > 0 ? tables.FrqRoseCaption(1) : "ALL DATA ARE MISSING";
}

}  // namespace

FreqFileOutcome loadFreqLines(const FreqSource& open, const std::string& path, ModPolarGraph& tables,
                              Host& host) {
    tables.CurrentRose = 1;
    const FreqVersion* version = nullptr;
    FreqHeaderSize header;
    {
        LineReader reader = open();
        withLine(reader, [&] {
            if (mayBeFreqFile(reader.ahead()))
                version = freqVersionOf(readFreqLine(reader, "the version of the format"));
        });
        if (version == nullptr) {
            keepOpen(reader.release());
            tellRefused(path, host);
            return FreqFileOutcome::Refused;
        }
        tables.FrqVersion = version->name;
        withLine(reader, [&] { header = readFreqHeaderSize(reader, *version); });
    }

    tables.FrqLineCount = countLines(open());
    tables.FrqFraction.redim(static_cast<std::size_t>(tables.FrqLineCount));
    tables.FrqRoseCount = roseCount(tables.FrqLineCount, header, *version);
    LineReader content = open();
    needHeader(content, header, tables);
    sizeRoseTables(*version, tables);
    withLine(content, [&] { readContent(content, *version, header, tables); });
    makePlotTexts(tables);
    tables.FrqLoaded = true;
    return FreqFileOutcome::Loaded;
}

FreqFileOutcome loadFreqFile(const std::string& path, ModPolarGraph& tables, Host& host) {
    return loadFreqLines([&path] { return LineReader(path); }, path, tables, host);
}

}  // namespace zg
