#include "windtable/TableRecords.h"

#include "base/Encoding.h"
#include "windtable/TableReadings.h"
#include "windtable/TableValues.h"

namespace zg {

namespace {

bool isWithinCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

TimeValues::TimeValues(const TableFields& fields, const std::vector<std::size_t>& columns) {
    for (const std::size_t column : columns) {
        if (count_ == values_.size()) return;
        values_[count_++] = fields.at(column);
    }
}

std::string TimeValues::text() const {
    std::string text;
    for (const std::string_view value : values()) text.append(text.empty() ? "" : " ").append(value);
    return text;
}

std::string quotedValue(std::string_view text) {
    constexpr std::size_t longest = 40;
    std::string shown = toUtf8(text);
    const bool isLong = shown.size() > longest;
    if (isLong) {
        std::size_t end = longest;
        while (end > 0 && isWithinCharacter(shown[end])) --end;
        shown.resize(end);
    }
    for (char& c : shown)
        if (static_cast<unsigned char>(c) < ' ') c = '?';
    return "\"" + shown + (isLong ? "...\"" : "\"");
}

TableLine TableRecords::fail(std::size_t column, std::string text) {
    fault_ = {column, std::move(text)};
    return TableLine::Fault;
}

TableLine TableRecords::read(std::string_view line) {
    if (!fields_.cut(line, layout_.delimiter, columns_)) return fail(0, "a quote is not closed");
    if (layout_.stationColumn != 0 && fields_.at(layout_.stationColumn) != layout_.station)
        return TableLine::Empty;
    if (fields_.size() < columns_) {
        if (isEmptyLine(line, layout_.delimiter)) return TableLine::Empty;
        return fail(0, "the line has " + std::to_string(fields_.size()) + " of at least " +
                           std::to_string(columns_) + " values");
    }
    const TimeValues times(fields_, layout_.timeColumns);
    const std::optional<TableTime> time = tableTime(layout_.timeForm, layout_.timePattern, times.values());
    if (!time) {
        if (isEmptyLine(line, layout_.delimiter)) return TableLine::Empty;
        return fail(layout_.timeColumns.front(),
                    quotedValue(times.text()) + " is no time, " +
                        (layout_.timeForm == TimeForm::Pattern ? "by the pattern " + layout_.timePattern
                                                               : std::string(nameOf(layout_.timeForm))));
    }
    const std::string_view speedText = fields_.at(layout_.speedColumn);
    const std::string_view directionText = fields_.at(layout_.directionColumn);
    const std::optional<double> speed = tableNumber(speedText, layout_);
    if (!speed) return fail(layout_.speedColumn, quotedValue(speedText) + " is no speed");
    const std::optional<double> direction = tableDirection(directionText, layout_);
    if (!direction) return fail(layout_.directionColumn, quotedValue(directionText) + " is no direction");
    record_ = {*time, *speed * metresASecondIn(layout_.unit), *direction};
    return TableLine::Record;
}

}  // namespace zg
