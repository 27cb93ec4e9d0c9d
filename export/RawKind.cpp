#include "export/RawKind.h"

#include <algorithm>
#include <array>

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "windtable/TableFields.h"
#include "windtable/TableGuess.h"

namespace zg {

namespace {

constexpr std::size_t longestLineOfRaw = std::size_t{1} << 20;
constexpr std::size_t mostValues = 64;
constexpr std::size_t surfaceValues = 18;
constexpr std::size_t profileValues = 8;

/// The values of a line as numbers, up to the first that is not one.
std::vector<double> numbersIn(std::string_view line) {
    TableFields fields;
    std::vector<double> numbers;
    if (!fields.cut(line, blankDelimiter, mostValues)) return numbers;
    try {
        for (std::size_t column = 1; column <= fields.size(); ++column)
            numbers.push_back(toDouble(fields.at(column)));
    } catch (const RunTimeError&) {
    }
    return numbers;
}

bool isWholeIn(double value, double least, double most) {
    return value >= least && value <= most && value == static_cast<double>(static_cast<int>(value));
}

bool isDay(const std::vector<double>& values) {
    return isWholeIn(values[0], 0, 9999) && isWholeIn(values[1], 1, 12) && isWholeIn(values[2], 1, 31);
}

/// Year, month, day, day of the year and hour come first in each line of a surface file.
bool isSurfaceHour(const std::vector<double>& values) {
    return values.size() >= surfaceValues && isDay(values) && isWholeIn(values[3], 1, 366) &&
           isWholeIn(values[4], 0, 24);
}

/// Year, month, day, hour, height and the mark of the top.
bool isProfileLevel(const std::vector<double>& values) {
    return values.size() >= profileValues && values.size() < surfaceValues && isDay(values) &&
           isWholeIn(values[3], 0, 24) && values[4] > 0 && isWholeIn(values[5], 0, 1);
}

bool isMonitorLine(std::string_view line) {
    TableFields fields;
    if (!fields.cut(line, ',', mostValues)) return false;
    const auto has = [&](std::string_view name) {
        for (std::size_t column = 1; column <= fields.size(); ++column)
            if (fields.at(column) == name) return true;
        return false;
    };
    return has("DATETIME") && has("STNCODE");
}

std::optional<InputKind> kindByLines(LineReader& lines) {
    const std::string first(withoutByteOrderMark(lines.readLine()));
    TableFields words;
    words.cut(first, blankDelimiter, 1);
    const std::string word = ucase(words.at(1));
    if (word == "WIND.FRQ") return {};
    for (const Format& format : formats())
        if (!format.firstWord.empty() && word == format.firstWord) return format.kind;
    if (isMonitorLine(first)) return InputKind::MonitorW;
    if (isIsdLiteLine(first)) return InputKind::Csv;
    if (isProfileLevel(numbersIn(first))) return InputKind::AermPfl;
    if (!lines.atEnd() && isSurfaceHour(numbersIn(lines.readLine()))) return InputKind::AermSfc;
    return {};
}

}  // namespace

std::optional<InputKind> rawKindOf(const std::string& path) {
    try {
        LineReader lines(path, longestLineOfRaw);
        if (lines.atEnd()) return {};
        if (const std::optional<InputKind> kind = kindByLines(lines)) return kind;
        return hasTableHead(path) ? std::optional(InputKind::Csv) : std::nullopt;
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace zg
