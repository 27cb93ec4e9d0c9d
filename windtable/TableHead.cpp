#include "windtable/TableHead.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/Text.h"
#include "windtable/TableFields.h"
#include "windtable/TableTimes.h"
#include "windtable/TableValues.h"

namespace zg {

namespace {

constexpr std::size_t mostTableColumns = 4096;
constexpr std::array<char, 4> usualDelimiters = {'\t', ';', ',', blankDelimiter};
constexpr std::array<TimeForm, 4> singleForms = {TimeForm::YearFirst, TimeForm::DayFirst,
                                                 TimeForm::MonthFirst, TimeForm::Epoch};

/// 0 for a missing name.
std::size_t columnOf(const std::vector<std::string>& names, const std::string& wish) {
    const std::string wanted = ucase(wish);
    for (std::size_t i = 0; i < names.size(); ++i)
        if (ucase(names[i]) == wanted) return i + 1;
    return 0;
}

/// 0 for text that is not a column number.
std::size_t numberOfColumn(const std::string& wish) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(wish.data(), wish.data() + wish.size(), number);
    return error == std::errc() && end == wish.data() + wish.size() && number <= mostTableColumns ? number
                                                                                                  : 0;
}

std::vector<std::string> wishedNames(const std::string& wish) {
    std::vector<std::string> names;
    std::string_view rest = wish;
    for (;;) {
        const std::size_t comma = rest.find(',');
        names.emplace_back(withoutBlanks(rest.substr(0, comma)));
        if (comma == std::string_view::npos) return names;
        rest.remove_prefix(comma + 1);
    }
}

std::vector<std::size_t> numbersOf(const std::string& wish) {
    std::vector<std::size_t> numbers;
    for (const std::string& name : wishedNames(wish)) numbers.push_back(numberOfColumn(name));
    return numbers;
}

bool isSomeTime(const std::vector<std::string>& values, const std::vector<std::size_t>& columns,
                const std::string& wishedForm) {
    std::vector<std::string_view> texts;
    for (const std::size_t column : columns) {
        if (column == 0 || column > values.size()) return false;
        texts.emplace_back(values[column - 1]);
    }
    TimeForm form = TimeForm::Parts;
    std::string pattern;
    if (!wishedForm.empty()) return setTimeForm(wishedForm, form, pattern) && tableTime(form, pattern, texts);
    if (texts.size() > 2) return tableTime(TimeForm::Parts, {}, texts).has_value();
    return std::any_of(singleForms.begin(), singleForms.end(),
                       [&](TimeForm one) { return tableTime(one, {}, texts).has_value(); });
}

}  // namespace

std::vector<std::size_t> TableHeadSearch::wishedTime(const std::vector<std::string>& names) const {
    if (const std::size_t column = columnOf(names, wishes_.time); column != 0) return {column};
    std::vector<std::size_t> columns;
    for (const std::string& name : wishedNames(wishes_.time)) columns.push_back(columnOf(names, name));
    if (std::find(columns.begin(), columns.end(), 0U) != columns.end()) columns.clear();
    return columns;
}

std::optional<TableHead> TableHeadSearch::look(std::string_view line, std::size_t lineNumber) {
    if (wishes_.delimiter) return lookBy(*wishes_.delimiter, line, lineNumber);
    for (const char delimiter : usualDelimiters)
        if (std::optional<TableHead> head = lookBy(delimiter, line, lineNumber)) return head;
    return {};
}

std::optional<TableHead> TableHeadSearch::lookBy(char delimiter, std::string_view line,
                                                 std::size_t lineNumber) {
    TableFields fields;
    if (!fields.cut(line, delimiter, mostTableColumns) || fields.size() < 3) return {};
    std::vector<std::string> names;
    for (std::size_t column = 1; column <= fields.size(); ++column) names.emplace_back(fields.at(column));
    if (std::optional<TableHead> head = headOfNumbers(delimiter, names)) return head;
    TableNames found = tableNamesOf(names);
    const auto takeWish = [&](const std::string& wish, std::vector<WindColumn>& columns) {
        if (wish.empty()) return;
        columns.clear();
        if (const std::size_t column = columnOf(names, wish); column != 0)
            columns.push_back(windColumn(column, names[column - 1]));
    };
    const std::vector<WindColumn> allSpeeds = found.speeds;
    takeWish(wishes_.speed, found.speeds);
    takeWish(wishes_.direction, found.directions);
    if (!wishes_.time.empty()) {
        found.time = wishedTime(names);
        found.timeIsParts = found.time.size() > 2;
    }
    if (!found.isComplete()) {
        keepBest(found, names, lineNumber);
        return {};
    }
    TableHead head;
    head.delimiter = delimiter;
    head.hasNames = true;
    head.timeColumns = found.time;
    head.timeIsParts = found.timeIsParts;
    for (const std::size_t column : found.time)
        head.timeName += (head.timeName.empty() ? "" : " ") + names[column - 1];
    head.speed = highestOf(found.speeds);
    head.direction = nearestTo(head.speed.height, found.directions);
    for (const WindColumn& other : allSpeeds)
        if (other.column != head.speed.column) head.otherSpeeds.push_back(other.name);
    head.stationColumn = found.station;
    if (found.station != 0) head.stationName = names[found.station - 1];
    return head;
}

std::optional<TableHead> TableHeadSearch::headOfNumbers(char delimiter,
                                                        const std::vector<std::string>& values) const {
    TableHead head;
    head.delimiter = delimiter;
    head.timeColumns = numbersOf(wishes_.time);
    head.timeIsParts = head.timeColumns.size() > 2;
    head.speed.column = numberOfColumn(wishes_.speed);
    head.direction.column = numberOfColumn(wishes_.direction);
    const auto valueOf = [&](std::size_t column) { return std::string_view(values[column - 1]); };
    const auto isNumber = [&](std::size_t column) {
        if (column == 0 || column > values.size()) return false;
        TableLayout layout;
        layout.missing = wishes_.missing;
        layout.decimalComma = delimiter != ',' && valueOf(column).find(',') != std::string_view::npos;
        return tableDirection(valueOf(column), layout).has_value();
    };
    if (!isNumber(head.speed.column) || !isNumber(head.direction.column) ||
        !isSomeTime(values, head.timeColumns, wishes_.timeForm))
        return {};
    const auto nameOfColumn = [](std::size_t column) { return "column " + std::to_string(column); };
    head.timeName = nameOfColumn(head.timeColumns.front());
    head.speed.name = nameOfColumn(head.speed.column);
    head.direction.name = nameOfColumn(head.direction.column);
    return head;
}

void TableHeadSearch::keepBest(const TableNames& found, const std::vector<std::string>& names,
                               std::size_t lineNumber) {
    const int parts =
        (found.time.empty() ? 0 : 1) + (found.speeds.empty() ? 0 : 1) + (found.directions.empty() ? 0 : 1);
    if (parts <= bestParts_) return;
    bestParts_ = parts;
    bestLine_ = lineNumber;
    const auto wanting = [](bool isThere, const char* what, const char* option, const std::string& wish) {
        if (isThere) return std::string();
        return std::string("no ") + what + (wish.empty() ? "" : " \"" + wish + "\"") + " (" + option +
               " NAME), ";
    };
    bestText_ = "the columns' names have " + wanting(!found.time.empty(), "time", "--time", wishes_.time) +
                wanting(!found.speeds.empty(), "wind speed", "--speed", wishes_.speed) +
                wanting(!found.directions.empty(), "wind direction", "--direction", wishes_.direction);
    bestText_.resize(bestText_.size() - 2);
    bestText_ += ": they are";
    constexpr std::size_t longest = 300;
    for (const std::string& name : names) bestText_ += " \"" + name + "\"";
    for (char& c : bestText_)
        if (static_cast<unsigned char>(c) < ' ') c = '?';
    if (bestText_.size() > longest) bestText_.replace(longest, std::string::npos, "...");
}

std::string TableHeadSearch::wanting() const { return bestText_; }

}  // namespace zg
