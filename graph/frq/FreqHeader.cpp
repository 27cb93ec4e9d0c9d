#include "graph/frq/FreqHeader.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/frq/FreqFields.h"
#include "graph/frq/FreqPeriod.h"

namespace zg {

namespace {

constexpr std::int16_t fieldLines = 6;  // lines of a one-count header, up to and including the period line

/// The sum in 16 bits; raises 6 if it does not fit.
std::int16_t sum16(std::int16_t a, std::int16_t b) { return toInt16(static_cast<double>(a + b)); }

/// "5 - Header lines" is 5.
std::int16_t hyphenatedCount(std::string_view line) { return toInt16(trimmed(freqField(line, '-', 0))); }

std::string measureText(std::string_view line) {
    const std::string_view key = trimmed(freqField(line, ':', 0));
    return std::string(key) + " = " + trim(freqField(line, ':', 1));
}

/// The limits exactly as between the commas, blanks included.
std::vector<std::string> classLimits(std::string_view line) {
    const Pieces pieces = split(freqField(line, ':', 1), ",");
    std::vector<std::string> limits;
    for (std::size_t i = 0; i < pieces.size(); ++i) limits.emplace_back(pieces[i]);
    return limits;
}

void skipToTitles(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size) {
    reader.readLine();  // the first count
    if (version.preamble == FreqPreamble::TwoCounts) skipFreqLines(reader, size.leadCount);
    reader.readLine();  // free text, or the second count
}

}  // namespace

void skipFreqLines(LineReader& reader, std::int16_t count) {
    for (std::int16_t i = 0; i < count; ++i) reader.readLine();
}

FreqHeaderSize readFreqHeaderSize(LineReader& reader, const FreqVersion& version) {
    if (version.preamble == FreqPreamble::OneCount) {
        const std::int16_t count = toInt16(trimmed(reader.readLine()));
        return {count, sum16(count, 2)};
    }
    const std::int16_t comments = hyphenatedCount(reader.readLine());
    skipFreqLines(reader, comments);
    const std::int16_t group = hyphenatedCount(reader.readLine());
    skipFreqLines(reader, group);
    return {comments, sum16(sum16(comments, group), 3)};
}

void readFreqHeaderFields(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size,
                          ModPolarGraph& tables) {
    skipToTitles(reader, version, size);
    tables.FrqTitle1 = trim(reader.readLine());
    tables.FrqTitle2 = squeezeBlanks(reader.readLine());
    tables.FrqMeasure = measureText(reader.readLine());
    tables.FrqClassLimit.assign(classLimits(reader.readLine()));
    readFreqPeriod(reader.readLine(), version, tables.FrqPeriodText);
}

void skipFreqHeaderRest(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size) {
    // After a header of two counts the first rose follows at once, whatever the second count is.
    if (version.preamble == FreqPreamble::OneCount)
        skipFreqLines(reader, sum16(size.leadCount, static_cast<std::int16_t>(-fieldLines)));
}

}  // namespace zg
