#include "tempoline/TsfFile.h"

#include <charconv>

#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t valueWidth = 11;

void appendWhole(std::string& text, std::int64_t value) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    text.append(digits, end);
}

/// The shortest text that reads back as the same number, so that a rose made from the series is identical.
void appendValue(std::string& text, bool present, double value) {
    char digits[32] = "9999.";
    const char* end = digits + 5;
    if (present) end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    const std::size_t length = static_cast<std::size_t>(end - digits);
    text.append(length < valueWidth ? valueWidth - length : 1, ' ');
    text.append(digits, length);
}

std::string variableLine(const char* name, const char* unit, double height) {
    std::string line = std::string(name) + "  " + unit;
    if (height >= 0) line += "  " + metresText(height);
    return line + "\r\n";
}

}  // namespace

TsfFile::TsfFile(const std::string& name, const TsfHeading& heading) : file_(name), step_(heading.step) {
    file_.write("TIMESERIES.TSF  1.3             Zephyrgraph time series of winds\r\n1 - Comment lines\r\n");
    file_.write(heading.source + "\r\n");
    file_.write(heading.title + "\r\n");
    file_.write("MET - meteorological data\r\nStation: STATION ID = " + heading.station + "\r\n");
    file_.write(heading.zone + "\r\nGREGORIAN_YMD\r\n");
    file_.write(periodText(heading.begin) + " " + periodText(heading.end) + " " +
                std::to_string(heading.step) + "\r\n2 - Variables\r\n");
    file_.write(variableLine("WDIR", "DEG", heading.height));
    file_.write(variableLine("WSPEED", "M/S", heading.height));
}

void TsfFile::appendMoment(Seconds moment) {
    const std::int64_t day = (moment >= 0 ? moment : moment - (secondsADay - 1)) / secondsADay;
    if (day != day_) {
        const Calendar c = calendarOf(moment);
        day_ = day;
        dayText_ = std::to_string(c.year) + ' ' + std::to_string(c.month) + ' ' + std::to_string(c.day) + ' ';
    }
    const Seconds secondOfDay = moment - day * secondsADay;
    line_ += dayText_;
    appendWhole(line_, secondOfDay / secondsAnHour);
    line_ += ' ';
    appendWhole(line_, secondOfDay % secondsAnHour);
    line_ += ' ';
}

void TsfFile::add(Seconds begin, const Wind& wind) {
    line_.clear();
    appendMoment(begin);
    appendMoment(begin + step_);
    appendValue(line_, hasDirection(wind), wind.direction);
    appendValue(line_, hasSpeed(wind), wind.speed);
    line_ += "\r\n";
    file_.write(line_);
}

}  // namespace zg::tempoline
