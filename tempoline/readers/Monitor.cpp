#include <algorithm>
#include <array>

#include "base/Text.h"
#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t mostColumns = 512;
constexpr std::size_t noColumn = mostColumns;
constexpr double missingMark = -999;
constexpr std::array<std::string_view, 4> directionNames = {"WDIR", "WD", "WIND_DIR", "WINDDIRECTION"};
constexpr std::array<std::string_view, 5> speedNames = {"WSPD", "WSPEED", "WS", "WIND_SPEED", "WINDSPEED"};

/// Comma-separated records of several stations, stamped with the end of their averaging time, in the zone of
/// the run.
class Monitor : public InputReader {
 public:
    explicit Monitor(const Control& control) : control_(control) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        readHeadings(lines);
        noteNoShift(control_);
        std::string_view line;
        while (lines.next(line)) {
            if (line.find('"') != std::string_view::npos) {
                unquoted_ = line;
                std::erase(unquoted_, '"');
                line = unquoted_;
            }
            if (!stripped(line).empty()) readRecord(lines, line, series[0]);
        }
        if (!found_)
            throw lines.failure("STNCODE",
                                "no record is of the station \"" + control_.outputs[0].station + "\"");
    }

    void finish() override {
        noteOutput(0, entryLine("Records passed over", std::to_string(others_) + ", of other stations"));
    }

 private:
    void readHeadings(LineSource& lines) {
        std::string line(lines.need("the headings"));
        std::erase(line, '"');
        if (line.rfind("\xEF\xBB\xBF", 0) == 0) line.erase(0, 3);
        const std::size_t count = splitCommas(line, fields_);
        if (count == mostColumns) throw lines.failure("headings", "there are more columns than 511");
        for (std::size_t i = 0; i < count; ++i) {
            const std::string name(stripped(fields_[i]));
            if (name == "DATETIME" && time_ == noColumn) time_ = i;
            if (name == "STNCODE" && station_ == noColumn) station_ = i;
            if (name == "DATAAVID" && average_ == noColumn) average_ = i;
            if (direction_ == noColumn && isAmong(directionNames, ucase(name))) direction_ = i;
            if (speed_ == noColumn && isAmong(speedNames, ucase(name))) speed_ = i;
        }
        needColumn(lines, time_, "DATETIME");
        needColumn(lines, station_, "STNCODE");
        needColumn(lines, average_, "DATAAVID");
        needColumn(lines, direction_, "wind direction");
        needColumn(lines, speed_, "wind speed");
        columns_ = std::max({time_, station_, average_, direction_, speed_}) + 1;
    }

    static void needColumn(const LineSource& lines, std::size_t column, std::string_view name) {
        if (column == noColumn) throw lines.failure("headings", "there is no column of " + std::string(name));
    }

    void readRecord(const LineSource& lines, std::string_view line, Series& series) {
        const std::size_t count = splitCommas(line, std::span(fields_).first(columns_));
        if (count <= station_)
            throw lines.failure("STNCODE", "the record has only " + std::to_string(count) + " fields");
        if (stripped(fields_[station_]) != control_.outputs[0].station) {
            ++others_;
            return;
        }
        found_ = true;
        if (count < columns_)
            throw lines.failure("", "the record has " + std::to_string(count) + " of at least " +
                                        std::to_string(columns_) + " fields");
        const bool isEmpty = stripped(fields_[average_]).empty();
        const int minutes = isEmpty && averaging_ != 0 ? averaging_ : minutesOf(lines);
        if (averaging_ == 0) averaging_ = minutes;
        const Seconds end = timeOf(lines, stripped(fields_[time_]));
        const Wind wind = {known(valueField(lines, fields_[speed_], "wind speed")),
                           known(valueField(lines, fields_[direction_], "wind direction"))};
        series.add(end - minutes * Seconds{60}, end, wind, lines);
    }

    static double known(double value) { return value == missingMark ? missingValue : value; }

    int minutesOf(const LineSource& lines) const {
        const int minutes = wholeField(lines, fields_[average_], "DATAAVID");
        if (minutes < 1 || minutes > 1440)
            throw lines.failure("DATAAVID", std::to_string(minutes) + " minutes are not between 1 and 1440");
        return minutes;
    }

    /// "3/15/2005 13:00", optionally with seconds and "AM" or "PM".
    static Seconds timeOf(const LineSource& lines, std::string_view text) {
        std::array<std::string_view, 4> parts;
        const std::size_t count = splitBlanks(text, parts);
        std::array<std::string_view, 4> date;
        std::array<std::string_view, 4> time = {"", "0", "0", ""};
        if (count < 2 || count > 3 || cut(parts[0], '/', date) != 3)
            throw lines.failure("DATETIME", "month/day/year and a time are needed");
        const std::size_t pieces = cut(parts[1], ':', time);
        if (pieces < 2 || pieces > 3)
            throw lines.failure("DATETIME", "a time as 13:00 or 13:00:00 is needed");
        const int minute = wholeField(lines, time[1], "DATETIME");
        const int second = pieces == 3 ? wholeField(lines, time[2], "DATETIME") : 0;
        if (minute < 0 || minute > 59 || second < 0 || second > 59)
            throw lines.failure("DATETIME", "minutes and seconds go from 0 to 59");
        const Seconds moment =
            stampOf(lines, date[2], date[0], date[1], time[0]) + Seconds{60} * minute + second;
        return count == 3 ? moment + halfDay(lines, ucase(parts[2]), wholeField(lines, time[0], "DATETIME"))
                          : moment;
    }

    static Seconds halfDay(const LineSource& lines, const std::string& half, int hour) {
        if ((half != "AM" && half != "PM") || hour < 1 || hour > 12)
            throw lines.failure("DATETIME", "only AM or PM of the hours 1 to 12 may follow the time");
        if (half == "AM") return hour == 12 ? -12 * secondsAnHour : 0;
        return hour == 12 ? 0 : 12 * secondsAnHour;
    }

    static std::size_t cut(std::string_view text, char separator, std::array<std::string_view, 4>& parts) {
        std::size_t count = 0;
        while (count < parts.size()) {
            const std::size_t end = text.find(separator);
            parts[count++] = text.substr(0, end);
            if (end == std::string_view::npos) break;
            text.remove_prefix(end + 1);
        }
        return count;
    }

    const Control& control_;
    std::array<std::string_view, mostColumns> fields_;
    std::string unquoted_;
    std::size_t time_ = noColumn;
    std::size_t station_ = noColumn;
    std::size_t average_ = noColumn;
    std::size_t direction_ = noColumn;
    std::size_t speed_ = noColumn;
    std::size_t columns_ = 0;
    int averaging_ = 0;  ///< minutes, from the first record of the station
    bool found_ = false;
    std::int64_t others_ = 0;  ///< records of other stations
};

}  // namespace

std::unique_ptr<InputReader> makeMonitor(const Control& control) {
    return std::make_unique<Monitor>(control);
}

}  // namespace zg::tempoline
