#include <array>
#include <cmath>

#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t hourField = 4;
constexpr std::size_t speedField = 15;
constexpr std::size_t directionField = 16;
constexpr std::size_t heightField = 17;
constexpr std::size_t stationField = 5;

/// One line per hour, stamped with its end, in the zone of the run.
class AermetSurface : public InputReader {
 public:
    explicit AermetSurface(const Control& control) : control_(control) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        readHeader(lines);
        noteNoShift(control_);
        std::string_view line;
        std::array<std::string_view, heightField + 1> fields;
        while (lines.next(line)) {
            const std::size_t count = splitBlanks(line, fields);
            if (count == 0) continue;
            if (count <= heightField)
                throw lines.failure("", "the line has " + std::to_string(count) + " of at least 18 fields");
            const Seconds end = stampOf(lines, fields[0], fields[1], fields[2], fields[hourField]);
            const Wind wind = {valueField(lines, fields[speedField], "wind speed"),
                               valueField(lines, fields[directionField], "wind direction")};
            series[0].add(end - secondsAnHour, end, wind, lines);
            compareHeight(lines, fields[heightField], wind);
        }
    }

 private:
    /// Without a header, the first hour would be taken for it.
    void readHeader(LineSource& lines) {
        std::array<std::string_view, stationField + 1> fields;
        const std::size_t count = splitBlanks(lines.need("the header"), fields);
        std::size_t whole = 0;
        while (whole < count && wholeOf(fields[whole])) ++whole;
        if (whole >= 5) throw lines.failure("", "the header is missing: the first line holds an hour");
        if (count > stationField) facts.station = fields[stationField];
    }

    void compareHeight(const LineSource& lines, std::string_view field, const Wind& wind) {
        if (field == lastHeight_ || !hasSpeed(wind)) return;
        lastHeight_ = field;
        const double height = valueField(lines, field, "wind height");
        if (height > 0 && height < 999 && std::abs(height - control_.outputs[0].height) > 0.005)
            note("WARNING: the winds of the file are of " + metresText(height) +
                 " m, and the control file says " + metresText(control_.outputs[0].height) + " m");
    }

    const Control& control_;
    std::string lastHeight_;
};

}  // namespace

std::unique_ptr<InputReader> makeAermetSurface(const Control& control) {
    return std::make_unique<AermetSurface>(control);
}

}  // namespace zg::tempoline
