#include "windtable/TableLayout.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "base/Text.h"
#include "windtable/TableTimes.h"

namespace zg {

namespace {

struct UnitWord {
    WindUnit unit;
    const char* word;
    double metresASecond;
};
constexpr std::array<UnitWord, 5> unitWords = {{{WindUnit::MetresASecond, "M/S", 1},
                                                {WindUnit::Knots, "KNOTS", 1852.0 / 3600},
                                                {WindUnit::KilometresAnHour, "KM/H", 1 / 3.6},
                                                {WindUnit::MilesAnHour, "MPH", 0.44704},
                                                {WindUnit::TenthsOfMetresASecond, "DM/S", 0.1}}};

struct DelimiterWord {
    char delimiter;
    const char* word;
};
constexpr std::array<DelimiterWord, 4> delimiterWords = {
    {{',', "COMMA"}, {';', "SEMICOLON"}, {'\t', "TAB"}, {blankDelimiter, "BLANKS"}}};

struct FormWord {
    TimeForm form;
    const char* word;
};
constexpr std::array<FormWord, 5> formWords = {{{TimeForm::DayFirst, "DMY"},
                                                {TimeForm::MonthFirst, "MDY"},
                                                {TimeForm::YearFirst, "YMD"},
                                                {TimeForm::Parts, "PARTS"},
                                                {TimeForm::Epoch, "EPOCH"}}};

}  // namespace

double metresASecondIn(WindUnit unit) {
    for (const UnitWord& entry : unitWords)
        if (entry.unit == unit) return entry.metresASecond;
    return 1;
}

const char* wordOf(WindUnit unit) {
    for (const UnitWord& entry : unitWords)
        if (entry.unit == unit) return entry.word;
    return "";
}

std::optional<WindUnit> unitOfWord(std::string_view word) {
    const std::string upper = ucase(word);
    for (const UnitWord& entry : unitWords)
        if (upper == entry.word) return entry.unit;
    return {};
}

std::string delimiterWord(char delimiter) {
    for (const DelimiterWord& entry : delimiterWords)
        if (entry.delimiter == delimiter) return entry.word;
    return {delimiter};
}

std::optional<char> delimiterOfWord(std::string_view word) {
    const std::string upper = ucase(word);
    for (const DelimiterWord& entry : delimiterWords)
        if (upper == entry.word) return entry.delimiter;
    const bool isDelimiter = word.size() == 1 && word[0] > ' ' && word[0] < '\x7F' && word[0] != '"' &&
                             word[0] != '!' && word[0] != '.' && word[0] != '-' &&
                             !(word[0] >= '0' && word[0] <= '9');
    return isDelimiter ? std::optional(word[0]) : std::nullopt;
}

std::string timeFormWord(TimeForm form, const std::string& pattern) {
    for (const FormWord& entry : formWords)
        if (entry.form == form) return entry.word;
    return pattern;
}

bool setTimeForm(std::string_view word, TimeForm& form, std::string& pattern) {
    const std::string upper = ucase(word);
    pattern.clear();
    for (const FormWord& entry : formWords) {
        if (upper != entry.word) continue;
        form = entry.form;
        return true;
    }
    if (!isTimePattern(word)) return false;
    form = TimeForm::Pattern;
    pattern = word;
    return true;
}

std::size_t TableLayout::columns() const {
    std::size_t last = std::max({speedColumn, directionColumn, stationColumn});
    for (const std::size_t column : timeColumns) last = std::max(last, column);
    return last;
}

std::vector<TableKey> keysOf(const TableLayout& layout) {
    std::string times;
    for (const std::size_t column : layout.timeColumns) {
        if (!times.empty()) times += ',';
        times += std::to_string(column);
    }
    std::vector<TableKey> keys = {{"CSVSEP", delimiterWord(layout.delimiter)},
                                  {"CSVDEC", layout.decimalComma ? "COMMA" : "POINT"},
                                  {"CSVHEAD", std::to_string(layout.headLines)},
                                  {"CSVNAME", std::to_string(layout.namesLine)},
                                  {"CSVTIME", times},
                                  {"CSVFORM", timeFormWord(layout.timeForm, layout.timePattern)},
                                  {"CSVSTMP", layout.stampsEnd ? "END" : "BEGIN"},
                                  {"CSVLEN", std::to_string(layout.recordSeconds)},
                                  {"CSVSPD", std::to_string(layout.speedColumn)},
                                  {"CSVUNIT", wordOf(layout.unit)},
                                  {"CSVDIR", std::to_string(layout.directionColumn)}};
    if (!layout.missing.empty()) keys.push_back({"CSVMISS", layout.missing});
    if (layout.stationColumn != 0) {
        keys.push_back({"CSVSTN", std::to_string(layout.stationColumn)});
        keys.push_back({"CSVID", layout.station});
    }
    if (layout.zone) keys.push_back({"CSVZONE", zoneWord(*layout.zone)});
    return keys;
}

}  // namespace zg
