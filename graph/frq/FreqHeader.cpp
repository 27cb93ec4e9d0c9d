#include "graph/frq/FreqHeader.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/frq/FreqFault.h"
#include "graph/frq/FreqFields.h"
#include "graph/frq/FreqPeriod.h"

namespace zg {

namespace {

constexpr std::int16_t fieldLines = 6;  // lines of a one-count header, up to and including the period line
constexpr const char* commentLines = "comment line";
constexpr const char* headerLines = "header line";

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

/// Skips that many lines, none for a count below 1.
void skipFreqLines(LineReader& reader, std::int16_t count, const char* what) {
    std::int16_t skipped = 0;
    try {
        for (; skipped < count; ++skipped) reader.readLine();
    } catch (RunTimeError& error) {
        std::string expected = std::to_string(count);
        expected.append(" ").append(what);
        if (count != 1) expected += "s";
        placeFreqEnd(error, reader, expected, freqNumber(static_cast<std::size_t>(skipped)));
        throw;
    }
}

std::size_t valuesOfPeriod(FreqPeriodForm form) {
    if (form == FreqPeriodForm::WholeHours) return 8;
    return form == FreqPeriodForm::Seconds ? 10 : 11;
}

void readPeriod(LineReader& reader, const FreqVersion& version, std::string& periodText) {
    const std::string_view line = readFreqLine(reader, "the period");
    try {
        readFreqPeriod(line, version, periodText);
    } catch (RunTimeError& error) {
        const std::size_t needed = valuesOfPeriod(version.period);
        const std::string plain = squeezeBlanks(line);
        const std::size_t given = split(plain, " ").size();
        if (given < needed)
            placeFreqError(error, reader, freqNumber(needed) + " values of the period", freqNumber(given));
        else
            placeFreqError(error, reader, "a period that exists", freqQuote(line));
        throw;
    }
}

void skipToTitles(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size) {
    reader.readLine();  // the first count
    if (version.preamble == FreqPreamble::TwoCounts) skipFreqLines(reader, size.leadCount, commentLines);
    readFreqLine(reader, "a line of text");  // or the second count
}

}  // namespace

FreqHeaderSize readFreqHeaderSize(LineReader& reader, const FreqVersion& version) {
    if (version.preamble == FreqPreamble::OneCount) {
        const std::int16_t count = readFreqLine(reader, "the number of header lines, up to 32767",
                                                [](std::string_view line) { return toInt16(trimmed(line)); });
        return {count, sum16(count, 2)};
    }
    const std::int16_t comments =
        readFreqLine(reader, "the number of comment lines, up to 32767", hyphenatedCount);
    skipFreqLines(reader, comments, commentLines);
    const std::int16_t group =
        readFreqLine(reader, "the number of header lines, up to 32767", hyphenatedCount);
    skipFreqLines(reader, group, headerLines);
    return {comments, sum16(sum16(comments, group), 3)};
}

void readFreqHeaderFields(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size,
                          ModPolarGraph& tables) {
    skipToTitles(reader, version, size);
    tables.FrqTitle1 = trim(readFreqLine(reader, "the first title"));
    tables.FrqTitle2 = squeezeBlanks(readFreqLine(reader, "the second title"));
    tables.FrqMeasure = readFreqLine(reader, "a key, a colon and a value", measureText);
    tables.FrqClassLimit.assign(readFreqLine(reader, "a text, a colon and class limits", classLimits));
    readPeriod(reader, version, tables.FrqPeriodText);
}

void skipFreqHeaderRest(LineReader& reader, const FreqVersion& version, const FreqHeaderSize& size) {
    // After a header of two counts the first rose follows at once, whatever the second count is.
    if (version.preamble == FreqPreamble::OneCount)
        skipFreqLines(reader, sum16(size.leadCount, static_cast<std::int16_t>(-fieldLines)), headerLines);
}

}  // namespace zg
