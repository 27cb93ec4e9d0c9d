#include "dialogs/point/SurfHeader.h"

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "processing/DateHelpers.h"
#include "processing/Zones.h"

namespace zg {

namespace {

constexpr std::string_view fileKind = "SURF.DAT";
constexpr std::size_t versionEnd = 19;
constexpr std::size_t versionLength = 3;

/// A moment of the header, as its fields give it.
struct Stamp {
    std::int16_t year = 0;
    std::int16_t julianDay = 0;
    std::int16_t hour = 0;
    std::int16_t seconds = 0;
};

DateTime momentOf(Host& host, Stamp stamp) {
    const MonthAndDay day = VBGRDAY(host, stamp.year, stamp.julianDay);
    DateTime date =
        DateFromParts(std::to_string(stamp.year), std::to_string(day.month()), std::to_string(day.day()));
    if (stamp.hour == 24) {
        stamp.hour = 0;
        date = addDays(date, 1);
    }
    std::int16_t forMinutes = stamp.seconds;  // the routine changes what it is given
    const std::string time = std::to_string(stamp.hour) + ":" + std::to_string(MinutesOf(forMinutes)) + ":" +
                             std::to_string(SecondsOf(stamp.seconds));
    return AddTimeToDate(date, time);
}

class SurfReader {
 public:
    SurfReader(Host& host, const std::string& path) : host_(host), lines_(path) {}

    SurfHeader read() {
        try {
            return readLines();
        } catch (RunTimeError& error) {
            if (error.where.empty()) error.where = std::to_string(lines_.lineNumber());
            throw;
        }
    }

 private:
    SurfHeader readLines() {
        SurfHeader header;
        const std::string first(lines_.readLine());
        if (leftN(trim(first), fileKind.size()) != fileKind) return header;
        const std::string version = rightN(leftN(first, versionEnd), versionLength);
        header.outcome = SurfOutcome::UnknownVersion;
        if (version != "2.0" && version != "2.1") return header;
        const std::int16_t comments = toInt16(trim(lines_.readLine()));
        for (int i = 0; i <= comments; ++i) lines_.readLine();
        if (version == "2.1") header.timeZone = trim(lines_.readLine());
        const int stationCount = version == "2.1" ? readPeriod21(header) : readPeriod20(header);
        for (int i = 0; i < stationCount; ++i) header.stations.push_back(trim(lines_.readLine()));
        header.begin = momentOf(host_, begin_);
        header.end = momentOf(host_, end_);
        if (version == "2.0") header.begin = addSeconds(header.begin, -3600);
        header.outcome = SurfOutcome::Read;
        return header;
    }

    int readPeriod20(SurfHeader& header) {
        const std::string line = squeezeBlanks(lines_.readLine());
        const Pieces fields = split(line, " ");
        begin_ = {toInt16(fields[0]), toInt16(fields[1]), toInt16(fields[2]), 0};
        end_ = {toInt16(fields[3]), toInt16(fields[4]), toInt16(fields[5]), 0};
        header.timeZone = TimeZoneFromHours(toDouble(fields[6]));
        return toInt16(fields[7]);
    }

    int readPeriod21(SurfHeader&) {
        const std::string line = squeezeBlanks(lines_.readLine());
        const Pieces fields = split(line, " ");
        begin_ = {toInt16(fields[0]), toInt16(fields[1]), toInt16(fields[2]), toInt16(fields[3])};
        end_ = {toInt16(fields[4]), toInt16(fields[5]), toInt16(fields[6]), toInt16(fields[7])};
        return toInt16(fields[8]);
    }

    Host& host_;
    LineReader lines_;
    Stamp begin_;
    Stamp end_;
};

}  // namespace

SurfHeader readSurfHeader(Host& host, const std::string& path) { return SurfReader(host, path).read(); }

}  // namespace zg
