#include "headers/SurfHeader.h"

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
    SurfReader(HeaderSource& source, SurfHeader& header) : source_(source), header_(header) {}

    void read() {
        const std::string first(source_.readLine("file type"));
        const Format& format = formatOf(InputKind::Surf);
        if (!trim(first).starts_with(format.firstWord)) return;
        const std::string version = rightN(leftN(first, versionEnd), versionLength);
        header_.outcome = SurfOutcome::UnknownVersion;
        if (!format.hasVersion(version)) return;
        withSeconds_ = version == "2.1";
        skipComments(source_);
        if (withSeconds_) header_.timeZone = trim(source_.readLine("time zone"));
        readPeriod();
        header_.stationsReached = true;
        for (int i = 0; i < stationCount_; ++i) header_.stations.push_back(trim(source_.readLine("station")));
        makePeriod();
        header_.outcome = SurfOutcome::Read;
    }

 private:
    void readPeriod() {
        HeaderFields fields(source_, source_.readLine("period"));
        periodLine_ = source_.line();
        begin_ = readStamp(fields, withSeconds_);
        end_ = readStamp(fields, withSeconds_);
        if (!withSeconds_) header_.timeZone = TimeZoneFromHours(fields.number("time zone"));
        stationCount_ = fields.whole("number of stations");
    }

    void makePeriod() {
        source_.atLine(periodLine_);
        header_.begin = momentOf(source_, begin_, "begin");
        header_.end = momentOf(source_, end_, "end");
        if (!withSeconds_) header_.begin = addSeconds(header_.begin, -3600);
    }

    HeaderSource& source_;
    SurfHeader& header_;
    bool withSeconds_ = false;
    HeaderSource::Line periodLine_;
    JulianStamp begin_;
    JulianStamp end_;
    int stationCount_ = 0;
};

}  // namespace

void readSurfHeader(HeaderSource& source, SurfHeader& header) {
    header = SurfHeader();
    source.placing([&] { SurfReader(source, header).read(); });
}

}  // namespace zg
