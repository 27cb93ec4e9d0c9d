#include "tempoline/TableKeys.h"

#include "base/Text.h"
#include "windtable/TableTimes.h"

namespace zg::tempoline {

namespace {

constexpr int mostColumnsOfTable = 4096;
constexpr int mostHeadLinesOfTable = 1'000'000;
constexpr std::size_t mostTimeColumns = 5;

std::size_t columnOfKey(ControlKeys& keys, std::string_view key) {
    return static_cast<std::size_t>(keys.whole(key, 1, mostColumnsOfTable));
}

/// One of two words.
bool isSecondWord(ControlKeys& keys, std::string_view key, const char* first, const char* second) {
    const std::string word = ucase(keys.textOr(key, first));
    if (word != first && word != second)
        throw keys.failure(key, std::string(first) + " or " + second + " is needed");
    return word == second;
}

void readTimes(ControlKeys& keys, TableLayout& layout) {
    for (const std::string& item : keys.items("CSVTIME", ""))
        layout.timeColumns.push_back(
            static_cast<std::size_t>(keys.wholeIn("CSVTIME", item, 1, mostColumnsOfTable)));
    const std::string form = keys.textOr("CSVFORM", "YMD");
    if (!setTimeForm(form, layout.timeForm, layout.timePattern))
        throw keys.failure("CSVFORM", "YMD, DMY, MDY, PARTS, EPOCH or a pattern as %d.%m.%Y %H:%M is needed");
    const std::size_t count = layout.timeColumns.size();
    const bool isParts = layout.timeForm == TimeForm::Parts;
    if (count > mostTimeColumns || (isParts ? count < 3 : count > 2))
        throw keys.failure("CSVTIME", std::to_string(count) + " columns are no time of the form " + form);
}

}  // namespace

TableLayout readTableLayout(ControlKeys& keys) {
    TableLayout layout;
    const std::string delimiter = keys.textOr("CSVSEP", "COMMA");
    if (!delimiterOfWord(delimiter))
        throw keys.failure("CSVSEP", "COMMA, SEMICOLON, TAB, BLANKS or one character is needed");
    layout.delimiter = *delimiterOfWord(delimiter);
    layout.decimalComma = isSecondWord(keys, "CSVDEC", "POINT", "COMMA");
    if (layout.decimalComma && layout.delimiter == ',')
        throw keys.failure("CSVDEC", "a comma cannot part the values too");
    layout.headLines = static_cast<std::size_t>(keys.wholeOr("CSVHEAD", 1, 0, mostHeadLinesOfTable));
    layout.namesLine = static_cast<std::size_t>(
        keys.wholeOr("CSVNAME", layout.headLines == 0 ? 0 : 1, 0, static_cast<int>(layout.headLines)));
    keys.text("CSVTIME");
    readTimes(keys, layout);
    layout.stampsEnd = isSecondWord(keys, "CSVSTMP", "BEGIN", "END");
    layout.recordSeconds = keys.wholeOr("CSVLEN", 3600, 1, static_cast<int>(secondsADay));
    layout.speedColumn = columnOfKey(keys, "CSVSPD");
    const std::optional<WindUnit> unit = unitOfWord(keys.textOr("CSVUNIT", "M/S"));
    if (!unit) throw keys.failure("CSVUNIT", "M/S, KNOTS, KM/H, MPH or DM/S is needed");
    layout.unit = *unit;
    layout.directionColumn = columnOfKey(keys, "CSVDIR");
    if (keys.has("CSVMISS")) layout.missing = keys.text("CSVMISS");
    if (keys.has("CSVSTN")) {
        layout.stationColumn = columnOfKey(keys, "CSVSTN");
        layout.station = keys.text("CSVID");
    } else if (keys.has("CSVID")) {
        throw keys.failure("CSVID", "it needs a CSVSTN");
    }
    if (!keys.has("CSVZONE")) return layout;
    layout.zone = zoneOffset(keys.text("CSVZONE"));
    if (!layout.zone)
        throw keys.failure("CSVZONE", "\"" + keys.text("CSVZONE") + "\" is no zone such as UTC-0500");
    return layout;
}

}  // namespace zg::tempoline
