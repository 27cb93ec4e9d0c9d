#include "headers/MonitorHeader.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "headers/DateHelpers.h"
#include "headers/TextHelpers.h"

namespace zg {

namespace {

constexpr std::int64_t recordStationField = 2;  // of all records but the first
constexpr std::size_t bytesBetweenCalls = 4'000'000;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr const char* wholeNumber = "a number";
constexpr const char* dateAndTime = "a date and a time";

struct Stamp {
    DateTime date;
    std::string time;
};

/// "3/15/2005 13:00"; what follows the time, such as "PM", is ignored.
Stamp stampOf(std::string_view text) {
    const Pieces pieces = split(text, " ");
    const Pieces date = split(pieces[0], "/");
    Stamp stamp{DateFromParts(date[2], date[0], date[1]), std::string(pieces[1])};
    if (std::count(stamp.time.begin(), stamp.time.end(), ':') == 1) stamp.time += ":00";
    return stamp;
}

/// The field of that index without quotes; raises 9 if the line has fewer.
std::string_view rawField(std::string_view line, std::int64_t index) {
    for (std::int64_t i = 0; i < index; ++i) {
        const std::size_t comma = line.find(',');
        if (comma == std::string_view::npos) raise(ErrorNumber::SubscriptOutOfRange);
        line.remove_prefix(comma + 1);
    }
    return line.substr(0, line.find(','));
}

/// The field of that column, which the error is named by.
std::string fieldOf(HeaderSource& source, const std::string& record, std::int64_t index, const char* column,
                    const char* wanted) {
    source.atField(column);
    if (index < 0) raise(ErrorNumber::SubscriptOutOfRange);
    std::string field(split(record, ",")[static_cast<std::size_t>(index)]);
    source.atField(column, field, wanted);
    return field;
}

class MonitorReader {
 public:
    MonitorReader(HeaderSource& source, const std::function<void()>& onProgress,
                  const std::function<void(const std::string&)>& onStation)
        : source_(source), onProgress_(onProgress), onStation_(onStation) {}

    MonitorHeader read() {
        std::string names = removeQuotes(source_.readLine("names"));
        if (names.starts_with(byteOrderMark)) names.erase(0, byteOrderMark.size());
        const Pieces pieces = split(names, ",");
        std::vector<std::string> columns;
        for (std::size_t i = 0; i < pieces.size(); ++i) columns.emplace_back(pieces[i]);
        const std::int64_t dateColumn = FindColumn("DATETIME", columns);
        const std::int64_t codeColumn = FindColumn("STNCODE", columns);
        const std::int64_t averageColumn = FindColumn("DATAAVID", columns);
        if (dateColumn < 0 || codeColumn < 0) return {};
        header_.isMonitor = true;
        std::string record = firstRecord();
        const HeaderSource::Line firstLine = source_.line();
        header_.averagingMinutes = toInt16(fieldOf(source_, record, averageColumn, "DATAAVID", wholeNumber));
        addStation(fieldOf(source_, record, codeColumn, "STNCODE", "a station"));
        const std::string firstTime = fieldOf(source_, record, dateColumn, "DATETIME", dateAndTime);
        const Stamp first = stampOf(firstTime);
        const HeaderSource::Line lastLine = passOver(record);
        source_.atLine(lastLine);
        const std::string lastTime =
            fieldOf(source_, removeQuotes(record), dateColumn, "DATETIME", dateAndTime);
        const Stamp last = stampOf(lastTime);
        source_.atLine(firstLine);
        source_.atField("DATETIME", firstTime, dateAndTime);
        header_.begin =
            addSeconds(AddTimeToDate(first.date, first.time), std::int64_t{-60} * header_.averagingMinutes);
        source_.atLine(lastLine);
        source_.atField("DATETIME", lastTime, dateAndTime);
        header_.end = AddTimeToDate(last.date, last.time);
        return std::move(header_);
    }

 private:
    std::string firstRecord() {
        std::string record;
        while (record.empty()) record = removeQuotes(source_.readLine("record"));
        return record;
    }

    /// Leaves the last line that is not empty in the record, and tells which one it is.
    HeaderSource::Line passOver(std::string& record) {
        HeaderSource::Line last = source_.line();
        std::size_t bytes = 0;
        std::string current = header_.stations.back();
        while (!source_.atEnd()) {
            const std::string_view line = trimmed(source_.readLine("record"));
            bytes += line.size();
            if (onProgress_ && bytes >= bytesBetweenCalls) {
                onProgress_();
                bytes = 0;
            }
            if (line.empty()) continue;
            source_.atField("station (third field)");
            const std::string_view raw = rawField(line, recordStationField);
            if (raw != current) takeTurn(raw, current);
            record.assign(line);
            last = source_.line();
        }
        return last;
    }

    void takeTurn(std::string_view raw, std::string& current) {
        std::string station(raw);
        std::erase(station, '"');
        if (station == current) return;
        current = station;
        addStation(station);
    }

    void addStation(const std::string& station) {
        header_.stations.push_back(station);
        if (onStation_) onStation_(station);
    }

    HeaderSource& source_;
    const std::function<void()>& onProgress_;
    const std::function<void(const std::string&)>& onStation_;
    MonitorHeader header_;
};

}  // namespace

MonitorHeader readMonitorHeader(HeaderSource& source, const std::function<void()>& onProgress,
                                const std::function<void(const std::string&)>& onStation) {
    return source.placing([&] { return MonitorReader(source, onProgress, onStation).read(); });
}

}  // namespace zg
