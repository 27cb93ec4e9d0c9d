#include <array>

#include "base/Text.h"
#include "tempoline/Fields.h"
#include "tempoline/readers/HeaderLines.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t timeFields = 10;
constexpr std::size_t mostVariables = 200;
constexpr double missingCode = 9999;

/// A time series that the processor wrote.
class Tsf : public InputReader {
 public:
    explicit Tsf(const Control& control) : control_(control) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        readHeader(lines);
        const Seconds shift = control_.zoneOffset - fileOffset_;
        const std::size_t needed = timeFields + variables_;
        std::optional<Seconds> last;
        std::string_view line;
        std::array<std::string_view, timeFields + mostVariables> fields;
        while (lines.next(line)) {
            const std::size_t count = splitBlanks(line, std::span(fields).first(needed));
            if (count == 0) continue;
            if (count < needed)
                throw lines.failure("", "the line has " + std::to_string(count) + " of " +
                                            std::to_string(needed) + " fields");
            const Seconds begin = stampOf(lines, fields[0], fields[1], fields[2], fields[3], fields[4]);
            const Seconds end = stampOf(lines, fields[5], fields[6], fields[7], fields[8], fields[9]);
            const Wind wind = {known(valueField(lines, fields[timeFields + speed_], "WSPEED")),
                               known(valueField(lines, fields[timeFields + direction_], "WDIR"))};
            series[0].add(begin + shift, end + shift, wind, lines);
            last = end + shift;
        }
        noteEnd(path, promised_, last);
    }

 private:
    void readHeader(LineSource& lines) {
        versionOf(lines, InputKind::Tsf);
        skipComments(lines);
        lines.need("the line after the comments");
        lines.need("the kind of the data");
        readStation(lines.need("the station"));
        std::string zone;
        do {
            zone = trim(lines.need("the time zone"));
        } while (ucase(zone.substr(0, 3)) != "UTC");
        fileOffset_ = zoneField(lines, zone);
        if (ucase(stripped(lines.need("GREGORIAN_YMD"))) != "GREGORIAN_YMD")
            throw lines.failure("", "GREGORIAN_YMD is needed");
        readPeriod(lines.need("the period"));
        noteShift(control_, fileOffset_);
        readVariables(lines);
    }

    /// "Station: STATION ID = 14735"
    void readStation(std::string_view line) {
        const std::size_t colon = line.find(':');
        const std::size_t equals = line.find('=');
        if (colon == std::string_view::npos || equals == std::string_view::npos || equals < colon) return;
        if (ucase(stripped(line.substr(colon + 1, equals - colon - 1))) == "STATION ID")
            facts.station = stripped(line.substr(equals + 1));
    }

    void readPeriod(std::string_view line) {
        std::array<std::string_view, timeFields> fields;
        promised_.reset();
        if (splitBlanks(line, fields) < timeFields) return;
        promised_ = promisedEnd(fields[5], fields[6], fields[7], fields[8], fields[9]);
        if (promised_) *promised_ += control_.zoneOffset - fileOffset_;
    }

    void readVariables(LineSource& lines) {
        const int count = countOf(lines, "number of variables");
        if (count > static_cast<int>(mostVariables))
            throw lines.failure("number of variables", "more than 200");
        variables_ = static_cast<std::size_t>(count);
        bool hasDirection = false;
        bool hasSpeed = false;
        std::array<std::string_view, 3> fields;
        for (std::size_t i = 0; i < variables_; ++i) {
            const std::size_t parts = splitBlanks(lines.need("a variable"), fields);
            const std::string name = parts > 0 ? ucase(fields[0]) : std::string();
            if (name == "WDIR" && !hasDirection) {
                hasDirection = true;
                direction_ = i;
            }
            if (name == "WSPEED" && !hasSpeed) {
                hasSpeed = true;
                speed_ = i;
                const double height = parts > 2 ? valueOf(fields[2]).value_or(missingValue) : missingValue;
                if (height >= 0) facts.height = height;
            }
        }
        if (!hasDirection || !hasSpeed) throw lines.failure("variables", "WDIR and WSPEED are needed");
    }

    static double known(double value) { return value == missingCode ? missingValue : value; }

    const Control& control_;
    Seconds fileOffset_ = 0;
    std::size_t variables_ = 0;
    std::size_t direction_ = 0;
    std::size_t speed_ = 0;
    std::optional<Seconds> promised_;  ///< end of the data according to the header, in the zone of the run
};

}  // namespace

std::unique_ptr<InputReader> makeTsf(const Control& control) { return std::make_unique<Tsf>(control); }

}  // namespace zg::tempoline
