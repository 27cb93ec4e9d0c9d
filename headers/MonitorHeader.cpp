#include "headers/MonitorHeader.h"

#include <algorithm>

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "headers/DateHelpers.h"
#include "headers/HeaderDates.h"
#include "headers/TextHelpers.h"

namespace zg {

namespace {

constexpr std::int64_t recordStationField = 2;  // of all records but the first
constexpr std::size_t bytesBetweenCalls = 4'000'000;

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

std::string fieldOf(const std::string& record, std::int64_t index) {
    if (index < 0) raise(ErrorNumber::SubscriptOutOfRange);
    return std::string(split(record, ",")[static_cast<std::size_t>(index)]);
}

class MonitorReader {
 public:
    MonitorReader(LineReader& lines, const std::function<void()>& onProgress,
                  const std::function<void(const std::string&)>& onStation)
        : lines_(lines), onProgress_(onProgress), onStation_(onStation) {}

    MonitorHeader read() {
        const std::string names = removeQuotes(lines_.readLine());
        const Pieces pieces = split(names, ",");
        std::vector<std::string> columns;
        for (std::size_t i = 0; i < pieces.size(); ++i) columns.emplace_back(pieces[i]);
        const std::int64_t dateColumn = FindColumn("DATETIME", columns);
        const std::int64_t codeColumn = FindColumn("STNCODE", columns);
        const std::int64_t averageColumn = FindColumn("DATAAVID", columns);
        if (dateColumn < 0 || codeColumn < 0) return {};
        header_.isMonitor = true;
        std::string record = firstRecord();
        header_.averagingMinutes = toInt16(fieldOf(record, averageColumn));
        addStation(fieldOf(record, codeColumn));
        const Stamp first = stampOf(fieldOf(record, dateColumn));
        passOver(record);
        const Stamp last = stampOf(fieldOf(removeQuotes(record), dateColumn));
        header_.begin =
            addSeconds(AddTimeToDate(first.date, first.time), std::int64_t{-60} * header_.averagingMinutes);
        header_.end = AddTimeToDate(last.date, last.time);
        return std::move(header_);
    }

 private:
    std::string firstRecord() {
        std::string record;
        while (record.empty()) record = removeQuotes(lines_.readLine());
        return record;
    }

    /// Leaves the last line that is not empty in the record.
    void passOver(std::string& record) {
        std::size_t bytes = 0;
        std::string current = header_.stations.back();
        while (!lines_.atEnd()) {
            const std::string_view line = trimmed(lines_.readLine());
            bytes += line.size();
            if (onProgress_ && bytes >= bytesBetweenCalls) {
                onProgress_();
                bytes = 0;
            }
            if (line.empty()) continue;
            const std::string_view raw = rawField(line, recordStationField);
            if (raw != current) takeTurn(raw, current);
            record.assign(line);
        }
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

    LineReader& lines_;
    const std::function<void()>& onProgress_;
    const std::function<void(const std::string&)>& onStation_;
    MonitorHeader header_;
};

}  // namespace

MonitorHeader readMonitorHeader(const std::string& path, const std::function<void()>& onProgress,
                                const std::function<void(const std::string&)>& onStation) {
    LineReader lines(path);
    return withLineNumbers(lines, [&] { return MonitorReader(lines, onProgress, onStation).read(); });
}

}  // namespace zg
