#include "graph/frq/FreqBlock.h"

#include <array>
#include <cstddef>

#include "base/Numbers.h"
#include "base/Text.h"
#include "graph/frq/FreqFault.h"
#include "graph/frq/FreqFields.h"

namespace zg {

namespace {

constexpr std::array<double, 16> powersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

bool takePlainPercent(const char*& at, const char* end, double& value) {
    while (at != end && *at == ' ') ++at;
    std::uint64_t digits = 0;
    const char* const wholeFrom = at;
    for (; at != end && isDigit(*at); ++at) digits = digits * 10 + static_cast<unsigned char>(*at - '0');
    auto count = at - wholeFrom;
    std::ptrdiff_t decimals = 0;
    if (at != end && *at == '.') {
        const char* const decimalsFrom = ++at;
        for (; at != end && isDigit(*at); ++at) digits = digits * 10 + static_cast<unsigned char>(*at - '0');
        decimals = at - decimalsFrom;
        count += decimals;
    }
    if (at == end || *at != '%' || count == 0 || count > 15) return false;
    ++at;
    value = static_cast<double>(digits) / powersOfTen[static_cast<std::size_t>(decimals)];
    return true;
}

namespace {

bool readPlainShares(std::string_view cells, std::int64_t row, FractionTable& fractions) {
    std::array<double, speedClasses> percents{};
    const char* at = cells.data();
    for (double& percent : percents)
        if (!takePlainPercent(at, cells.data() + cells.size(), percent)) return false;
    double* share = &fractions(row, 1);
    for (const double percent : percents) *share++ = percent / 100;
    return true;
}

void readShares(std::string_view cells, std::int64_t row, FractionTable& fractions) {
    FreqFields percents(cells, '%');
    for (std::int16_t speedClass = 1; speedClass <= speedClasses; ++speedClass)
        fractions(row, speedClass) = toDouble(percents.next()) / 100;
}

bool isNumber(std::string_view text) {
    try {
        toDouble(text);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

/// What is in the place of six percentages: another number of them, or what is no number.
std::string foundShares(std::string_view cells) {
    std::size_t count = 0;
    for (std::size_t end = cells.find('%');
         end != std::string_view::npos && count < static_cast<std::size_t>(speedClasses);
         end = cells.find('%')) {
        const std::string_view cell = cells.substr(0, end);
        if (!isNumber(cell)) return freqQuote(cells.substr(0, end + 1)) + " among them";
        cells.remove_prefix(end + 1);
        ++count;
    }
    // The last number needs no "%".
    if (count < static_cast<std::size_t>(speedClasses) && isNumber(cells)) ++count;
    return freqNumber(count);
}

void placeRowError(RunTimeError& error, const LineReader& reader, std::string_view line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
        return placeFreqError(error, reader, "a direction, a colon and six percentages", freqQuote(line));
    std::string_view cells = line.substr(colon + 1);
    cells = cells.substr(0, cells.find(':'));
    placeFreqError(error, reader, "six percentages", foundShares(cells));
}

void readRow(std::string_view line, std::int16_t rose, std::int16_t direction, ModPolarGraph& tables) {
    FreqFields parts(line, ':');
    const std::string_view label = parts.next();
    if (rose == 1) tables.FrqDirectionLabel(direction) = trimmed(label);
    const std::int64_t row = fractionRow(rose, direction);
    if (!readPlainShares(parts.rest(), row, tables.FrqFraction))
        readShares(parts.next(), row, tables.FrqFraction);
}

void readDirections(LineReader& reader, std::int16_t rose, ModPolarGraph& tables) {
    for (std::int16_t direction = 1; direction <= freqDirections; ++direction) {
        const std::string_view line = readFreqLine(reader, "the row of a direction");
        try {
            readRow(line, rose, direction, tables);
        } catch (RunTimeError& error) {
            placeRowError(error, reader, line);
            throw;
        }
    }
}

std::string_view calmPercent(std::string_view line) {
    return trimmed(freqField(freqField(line, ':', 1), '%', 0));
}

/// "Valid Periods = 8700" is 8700, by way of a single: numbers of nine digits and more may change by some
/// units.
std::int32_t countOf(std::string_view part) {
    return toInt32(static_cast<double>(toSingle(trimmed(freqField(part, '=', 1)))));
}

float percentValid(std::int32_t valid, std::int32_t total) {
    if (total == 0) raise(ErrorNumber::DivisionByZero);
    const float percent = toSingle(static_cast<double>(valid) / static_cast<double>(total) * 100);
    return toSingle(roundHalfEven(static_cast<double>(percent), 1));
}

std::string captionOf(std::int16_t rose, const ModPolarGraph& tables) {
    const std::string& title = tables.FrqRoseTitle(rose);
    std::string caption;
    caption.reserve(title.size() + 120);
    caption.append(title).append(": Total Periods = ").append(std::to_string(tables.FrqTotalPeriods(rose)));
    caption.append("; Valid Periods = ").append(std::to_string(tables.FrqValidPeriods(rose)));
    caption.append(" (").append(singleText(tables.FrqPercentValid(rose))).append("%)");
    caption.append("; Calm Wind Periods = ").append(std::to_string(tables.FrqCalmPeriods(rose)));
    return caption;
}

void takeStatistics(std::string_view line, std::int16_t rose, ModPolarGraph& tables) {
    FreqFields parts(line, ';');
    tables.FrqTotalPeriods(rose) = countOf(parts.next());
    tables.FrqValidPeriods(rose) = countOf(parts.next());
    tables.FrqCalmPeriods(rose) = countOf(parts.next());
    tables.FrqPercentValid(rose) = percentValid(tables.FrqValidPeriods(rose), tables.FrqTotalPeriods(rose));
    tables.FrqRoseCaption(rose) = captionOf(rose, tables);
}

void readStatistics(LineReader& reader, std::int16_t rose, ModPolarGraph& tables) {
    const std::string_view line = readFreqLine(reader, "the total, valid and calm periods");
    try {
        takeStatistics(line, rose, tables);
    } catch (RunTimeError& error) {
        const bool isZero = error.number == static_cast<int>(ErrorNumber::DivisionByZero);
        placeFreqError(error, reader,
                       isZero ? "total periods above 0" : "the numbers of total, valid and calm periods",
                       freqQuote(line));
        throw;
    }
}

}  // namespace

void readFreqBlock(LineReader& reader, const FreqVersion& version, std::int16_t rose, ModPolarGraph& tables) {
    const bool statistics = version.statistics == FreqStatistics::Present;
    if (statistics) readFreqLine(reader, "the line before a rose");
    tables.FrqRoseTitle(rose) = readFreqLine(reader, "the title of a rose");
    readFreqLine(reader, "the headings of a rose");
    readDirections(reader, rose, tables);
    readFreqLine(reader, "the line after the directions");
    tables.FrqCalmPercent(rose) =
        readFreqLine(reader, "a text, a colon and the percentage of calms", calmPercent);
    if (statistics) {
        readStatistics(reader, rose, tables);
        return;
    }
    readFreqLine(reader, "the line after a rose");
    tables.FrqRoseCaption(rose) = tables.FrqRoseTitle(rose);
}

}  // namespace zg
