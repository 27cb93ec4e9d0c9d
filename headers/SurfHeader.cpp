#include "headers/SurfHeader.h"

#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "formats/Kinds.h"
#include "headers/HeaderDates.h"
#include "headers/Zones.h"

namespace zg {

namespace {

constexpr std::size_t versionEnd = 19;
constexpr std::size_t versionLength = 3;

class SurfReader {
 public:
    SurfReader(Host& host, const std::string& path) : host_(host), lines_(path) {}

    void read(SurfHeader& header) {
        withLineNumbers(lines_, [&] { readLines(header); });
    }

 private:
    void readLines(SurfHeader& header) {
        const std::string first(lines_.readLine());
        const Format& format = formatOf(InputKind::Surf);
        if (!trim(first).starts_with(format.firstWord)) return;
        const std::string version = rightN(leftN(first, versionEnd), versionLength);
        header.outcome = SurfOutcome::UnknownVersion;
        if (!format.hasVersion(version)) return;
        skipComments(lines_);
        if (version == "2.1") header.timeZone = trim(lines_.readLine());
        const int stationCount = version == "2.1" ? readPeriod21(header) : readPeriod20(header);
        header.stationsReached = true;
        for (int i = 0; i < stationCount; ++i) header.stations.push_back(trim(lines_.readLine()));
        header.begin = momentOf(host_, begin_);
        header.end = momentOf(host_, end_);
        if (version == "2.0") header.begin = addSeconds(header.begin, -3600);
        header.outcome = SurfOutcome::Read;
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
    JulianStamp begin_;
    JulianStamp end_;
};

}  // namespace

void readSurfHeader(Host& host, const std::string& path, SurfHeader& header) {
    header = SurfHeader();
    SurfReader(host, path).read(header);
}

}  // namespace zg
