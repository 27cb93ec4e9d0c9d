#include "windtable/TableGuess.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/Encoding.h"
#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "windtable/TableFields.h"
#include "windtable/TableHead.h"
#include "windtable/TableReadings.h"
#include "windtable/TableRecords.h"
#include "windtable/TableStations.h"
#include "windtable/TableTimes.h"
#include "windtable/TableValues.h"

namespace zg {

namespace {

constexpr std::size_t longestTableLine = std::size_t{1} << 20;
constexpr std::size_t mostHeadLines = 200;  // that are searched for the names
constexpr std::size_t mostUnitLines = 20;   // after the names
constexpr std::int64_t longestRecord = 86400;
constexpr std::size_t isdFields = 12;
constexpr std::size_t isdDirection = 8;
constexpr std::size_t isdSpeed = 9;

std::optional<int> wholeNumber(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

class Guess {
 public:
    Guess(const std::string& path, const TableWishes& wishes)
        : path_(path),
          wishes_(wishes),
          lines_(path, longestTableLine),
          station_(toUtf8(wishes.station)),
          stationInWindows1252_(fromUtf8(station_)) {
        facts_.layout.stampsEnd = wishes.stampsEnd;
        facts_.layout.missing = wishes.missing;
    }

    TableFacts all() {
        try {
            readHead();
            while (!lines_.atEnd()) readLine(nextLine());
        } catch (RunTimeError& error) {
            throw TableProblem(
                path_ + ":" + std::to_string(lines_.lineNumber() + 1) + ": " + error.description, false);
        }
        if (facts_.records == 0 && choosesStation() && !stations_.areSeveral()) {
            TableWishes rest = wishes_;
            rest.station.clear();
            return guessTable(path_, rest);
        }
        finish();
        return std::move(facts_);
    }

 private:
    std::string_view nextLine() {
        std::string_view line = lines_.readLine();
        if (lines_.lineNumber() == 1) line = withoutByteOrderMark(line);
        return line;
    }

    [[noreturn]] void fail(std::size_t line, const std::string& text, bool wrongWish = false) const {
        throw TableProblem(path_ + (line == 0 ? "" : ":" + std::to_string(line)) + ": " + text, wrongWish);
    }

    void readHead() {
        TableHeadSearch search(wishes_);
        while (!lines_.atEnd() && lines_.lineNumber() < mostHeadLines) {
            const std::string_view line = nextLine();
            if (line.find('\0') != std::string_view::npos) fail(0, "this is no text");
            if (lines_.lineNumber() == 1 && isIsdLiteLine(line)) return beginIsdLite(line);
            if (const std::optional<TableHead> head = search.look(line, lines_.lineNumber())) {
                takeHead(*head);
                if (!head->hasNames) readLine(line);
                return;
            }
        }
        const bool wished = !wishes_.time.empty() || !wishes_.speed.empty() || !wishes_.direction.empty();
        if (search.bestLine() > 0) fail(search.bestLine(), search.wanting(), wished);
        fail(0,
             "no line of names with a time, a wind speed and a wind direction is among its first " +
                 std::to_string(lines_.lineNumber()) + " lines: this is no kind of file that is known",
             wished);
    }

    void takeHead(const TableHead& head) {
        TableLayout& layout = facts_.layout;
        layout.delimiter = head.delimiter;
        layout.namesLine = head.hasNames ? lines_.lineNumber() : 0;
        layout.headLines = head.hasNames ? layout.namesLine : lines_.lineNumber() - 1;
        layout.timeColumns = head.timeColumns;
        layout.speedColumn = head.speed.column;
        layout.directionColumn = head.direction.column;
        unit_ = wishes_.unit ? wishes_.unit : head.speed.unit;
        facts_.timeName = head.timeName;
        facts_.speedName = head.speed.name;
        facts_.directionName = head.direction.name;
        facts_.otherSpeeds = head.otherSpeeds;
        facts_.height = head.speed.height ? head.speed.height : head.direction.height;
        std::vector<TimeForm> forms = {TimeForm::YearFirst, TimeForm::DayFirst, TimeForm::MonthFirst,
                                       TimeForm::Epoch};
        if (head.timeIsParts) forms = {TimeForm::Parts};
        if (!wishes_.timeForm.empty()) {
            TimeForm form = TimeForm::Pattern;
            if (!setTimeForm(wishes_.timeForm, form, layout.timePattern))
                fail(0, "--time-format: \"" + wishes_.timeForm + "\" is no form of times", true);
            forms = {form};
        }
        readings_.emplace(forms, layout.timePattern);
        columns_ = layout.columns();
        stations_ = TableStations(head.stationColumn, head.stationName);
    }

    void beginIsdLite(std::string_view line) {
        facts_.isIsdLite = true;
        TableLayout& layout = facts_.layout;
        layout.delimiter = blankDelimiter;
        layout.timeColumns = {1, 2, 3, 4};
        layout.speedColumn = isdSpeed;
        layout.directionColumn = isdDirection;
        layout.zone = 0;
        unit_ = WindUnit::TenthsOfMetresASecond;
        readings_.emplace(std::vector<TimeForm>{TimeForm::Parts});
        columns_ = layout.columns();
        readLine(line);
    }

    void readLine(std::string_view line) {
        TableLayout& layout = facts_.layout;
        if (!fields_.cut(line, layout.delimiter, std::max(columns_, stations_.column())))
            fail(lines_.lineNumber(), "a quote is not closed");
        if (isEmptyLine(line, layout.delimiter)) return;
        const std::string_view station = fields_.at(stations_.column());
        if (choosesStation() && !isChosen(station)) return passOver(station);
        if (fields_.size() < columns_ && (facts_.records > 0 || layout.namesLine == 0))
            fail(lines_.lineNumber(), "the line has " + std::to_string(fields_.size()) + " of at least " +
                                          std::to_string(columns_) + " values");
        const TimeValues times(fields_, layout.timeColumns);
        if (!readings_->add(times.values(), stations_.isOther(station))) {
            if (takeUnits()) return;
            fail(lines_.lineNumber(),
                 facts_.timeName + ": " + quotedValue(times.text()) + " is no time" + formsText());
        }
        ++facts_.records;
        stations_.add(station);
        decideComma(fields_.at(layout.speedColumn));
        decideComma(fields_.at(layout.directionColumn));
    }

    bool choosesStation() const { return !wishes_.station.empty() && stations_.column() != 0; }

    /// Wishes are in UTF-8. The first record tells in which of the two encodings the table has the name.
    bool isChosen(std::string_view station) {
        if (station == station_) return true;
        if (facts_.records > 0 || station != stationInWindows1252_) return false;
        station_ = stationInWindows1252_;
        return true;
    }

    /// A line of units, or a record of a station that was not asked for.
    void passOver(std::string_view station) {
        const TimeValues times(fields_, facts_.layout.timeColumns);
        if (facts_.records > 0 || readings_->canRead(times.values()) || !takeUnits()) stations_.add(station);
    }

    /// A line after the names with units or the like; false for a record whose time cannot be read.
    bool takeUnits() {
        TableLayout& layout = facts_.layout;
        const std::string_view speed = fields_.at(layout.speedColumn);
        TableLayout any = layout;
        any.decimalComma = speed.find(',') != std::string_view::npos && layout.delimiter != ',';
        const std::optional<double> number = tableNumber(speed, any);
        const bool isValue =
            number && (*number == *number || !isMissingText(speed) || speed == layout.missing);
        if (layout.namesLine == 0 || facts_.records > 0 || isValue ||
            lines_.lineNumber() > layout.namesLine + mostUnitLines)
            return false;
        if (!unit_) unit_ = speedUnitIn(speed);
        layout.headLines = lines_.lineNumber();
        return true;
    }

    std::string formsText() const {
        if (facts_.records == 0) return {};
        std::string text;
        for (const TimeReading& reading : readings_->readings())
            text += (text.empty() ? ", " : " or ") + std::string(nameOf(reading.form));
        return text + ", as those before it";
    }

    /// By the first value that has either.
    void decideComma(std::string_view value) {
        if (isCommaDecided_ || facts_.layout.delimiter == ',') return;
        const std::size_t at = value.find_first_of(",.");
        if (at == std::string_view::npos) return;
        isCommaDecided_ = true;
        facts_.layout.decimalComma = value[at] == ',';
    }

    void finish() {
        const std::vector<std::string>& stations = stations_.all();
        if (facts_.records == 0 && choosesStation())
            fail(0,
                 "--station: there is no station " + quotedValue(wishes_.station) + "; the file has " +
                     stationsText(stations),
                 true);
        if (!choosesStation() && stations_.areSeveral() && (stations_.alternate() || readings_->overlap()))
            fail(0,
                 "the column " + quotedValue(stations_.name()) + " names " + stationsCount(stations) +
                     " stations, whose times overlap or are not in order: " + stationsText(stations) +
                     "; --station " + quotedValue(stations.front()) + " takes one of them",
                 true);
        if (facts_.records == 0) fail(lines_.lineNumber(), "there is no record after the columns' names");
        const TimeReading* reading = readings_->best();
        if (reading == nullptr) fail(0, bothReadings());
        const std::int64_t length = reading->commonest();
        if (length == 0)
            fail(0, reading->distances > 0 ? "the records run backwards in time: they need to be sorted"
                                           : "all records are of one time: how long they last is not known");
        if (length > longestRecord)
            fail(0, "the records lie " + std::to_string(length) + " seconds apart, more than a day");
        TableLayout& layout = facts_.layout;
        takeStation();
        layout.unit = unit_.value_or(WindUnit::MetresASecond);
        layout.timeForm = reading->form;
        layout.recordSeconds = length;
        facts_.zone = layout.zone ? layout.zone : reading->zone;
        if (reading->named && !reading->zone)
            fail(0, "some of its times name a zone, and the first does not");
        layout.zone = facts_.zone;
        facts_.begin = reading->first - (layout.stampsEnd ? length : 0);
        facts_.end = reading->last + (layout.stampsEnd ? 0 : length);
        if (facts_.end <= facts_.begin)
            fail(0, "the last record, of " + timeText(reading->last) + ", is earlier than the first, of " +
                        timeText(reading->first) + ": the records need to be sorted");
    }

    void takeStation() {
        if (!stations_.areSeveral()) {
            if (!stations_.all().empty()) facts_.onlyStation = stations_.all().front();
            return;
        }
        if (!choosesStation()) {
            facts_.stations = stations_.all();
            return;
        }
        facts_.layout.stationColumn = stations_.column();
        facts_.layout.station = station_;
    }

    std::string bothReadings() const {
        std::string text = "the dates can be read in two ways:";
        for (const TimeReading& reading : readings_->readings()) {
            if (reading.form != TimeForm::DayFirst && reading.form != TimeForm::MonthFirst) continue;
            text += std::string(reading.form == TimeForm::DayFirst ? " " : ", or ") + nameOf(reading.form) +
                    ", from " + timeText(reading.first) + " to " + timeText(reading.last);
        }
        return text + "; --time-format dmy or mdy tells which";
    }

    std::string path_;
    const TableWishes& wishes_;
    LineReader lines_;
    TableFacts facts_;
    TableFields fields_;
    std::optional<TimeReadings> readings_;
    TableStations stations_;
    std::string station_;  ///< the chosen one, in the bytes of the table
    std::string stationInWindows1252_;
    std::optional<WindUnit> unit_;
    std::size_t columns_ = 0;
    bool isCommaDecided_ = false;
};

std::string lengthText(std::int64_t seconds) {
    if (seconds % 3600 == 0) return std::to_string(seconds / 3600) + " h";
    if (seconds % 60 == 0) return std::to_string(seconds / 60) + " min";
    return std::to_string(seconds) + " s";
}

std::string heightShown(double height) {
    std::string text = std::to_string(height);
    while (text.back() == '0') text.pop_back();
    if (text.back() == '.') text.pop_back();
    return text;
}

}  // namespace

bool isIsdLiteLine(std::string_view line) {
    TableFields fields;
    fields.cut(line, blankDelimiter, isdFields + 1);
    if (fields.size() != isdFields) return false;
    std::array<int, isdFields> values{};
    for (std::size_t i = 0; i < isdFields; ++i) {
        const std::optional<int> value = wholeNumber(fields.at(i + 1));
        if (!value) return false;
        values[i] = *value;
    }
    return values[0] >= 1900 && values[0] <= 2100 && dateSeconds(values[0], values[1], values[2]) &&
           values[3] >= 0 && values[3] <= 23;
}

bool hasTableHead(const std::string& path) {
    LineReader lines(path, longestTableLine);
    const TableWishes none;
    TableHeadSearch search(none);
    while (!lines.atEnd() && lines.lineNumber() < mostHeadLines) {
        const std::string_view line = withoutByteOrderMark(lines.readLine());
        if (line.find('\0') != std::string_view::npos) return false;
        if (search.look(line, lines.lineNumber())) return true;
    }
    return false;
}

TableFacts guessTable(const std::string& path, const TableWishes& wishes) {
    return Guess(path, wishes).all();
}

std::string takenText(const TableFacts& facts) {
    const TableLayout& layout = facts.layout;
    const std::string zone = facts.zone ? zoneWord(*facts.zone) : "no zone named";
    const std::string records = std::to_string(facts.records) + " records of " +
                                lengthText(layout.recordSeconds) + " from " + timeText(facts.begin) + " to " +
                                timeText(facts.end) + ", " + zone;
    if (facts.isIsdLite) return "ISD-Lite, " + records;
    std::string text =
        "a table by " + delimiterWord(layout.delimiter) + (layout.decimalComma ? " with decimal comma" : "") +
        ", time \"" + facts.timeName + "\" (" +
        (layout.timeForm == TimeForm::Pattern ? layout.timePattern : std::string(nameOf(layout.timeForm))) +
        ", the " + (layout.stampsEnd ? "end" : "begin") + " of a record), speed \"" + facts.speedName +
        "\" in " + wordOf(layout.unit);
    if (facts.height) text += " at " + heightShown(*facts.height) + " m";
    text += ", direction \"" + facts.directionName + "\", ";
    if (layout.stationColumn != 0) text += "station " + quotedValue(layout.station) + ", ";
    text += records;
    for (std::size_t i = 0; i < facts.otherSpeeds.size() && i < 8; ++i)
        text += (i == 0 ? "; not \"" : ", \"") + facts.otherSpeeds[i] + "\"";
    if (!facts.stations.empty())
        text += "; stations one after the other (--station takes one): " + stationsText(facts.stations);
    return text;
}

}  // namespace zg
