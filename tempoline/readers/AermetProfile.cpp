#include <array>
#include <cmath>

#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t fieldCount = 8;  // as far as the wind
constexpr std::size_t levelHeightField = 4;
constexpr double farAway = 10;  // metres between the asked height and the level that are told

struct NearestLevel {
    bool any = false;
    double height = 0;
    Wind wind;
};

/// Several lines an hour, one a level, stamped at its end, in the zone of the run.
class AermetProfile : public InputReader {
 public:
    explicit AermetProfile(const Control& control) : control_(control), nearest_(control.outputs.size()) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        std::string_view line;
        std::array<std::string_view, fieldCount> fields;
        bool open = false;
        Seconds end = 0;
        std::size_t firstLine = 0;  // of the hour
        while (lines.next(line)) {
            const std::size_t count = splitBlanks(line, fields);
            if (count == 0) continue;
            if (count < fieldCount)
                throw lines.failure("", "the line has " + std::to_string(count) + " of at least 8 fields");
            const Seconds stamp = stampOf(lines, fields[0], fields[1], fields[2], fields[3]);
            if (open && stamp != end) giveHour(end, series, {path, firstLine});
            if (!open || stamp != end) firstLine = lines.lineNumber();
            open = true;
            end = stamp;
            takeLevel(lines, fields);
        }
        if (open) giveHour(end, series, {path, firstLine});
    }

 private:
    void takeLevel(const LineSource& lines, const std::array<std::string_view, fieldCount>& fields) {
        const double height = valueField(lines, fields[levelHeightField], "height");
        const Wind wind = {valueField(lines, fields[7], "wind speed"),
                           valueField(lines, fields[6], "wind direction")};
        if (!hasValue(height)) return;
        for (std::size_t i = 0; i < nearest_.size(); ++i) {
            NearestLevel& nearest = nearest_[i];
            const double asked = control_.outputs[i].height;
            const double distance = std::abs(height - asked);
            const double best = std::abs(nearest.height - asked);
            if (nearest.any && (distance > best || (distance == best && height >= nearest.height))) continue;
            nearest = {true, height, wind};
        }
    }

    void giveHour(Seconds end, std::vector<Series>& series, const Place& place) {
        for (std::size_t i = 0; i < nearest_.size(); ++i) {
            const double asked = control_.outputs[i].height;
            if (nearest_[i].any && std::abs(nearest_[i].height - asked) > farAway)
                note("WARNING: in some hours the level nearest to " + metresText(asked) + " m is more than " +
                     metresText(farAway) + " m away");
            series[i].add(end - secondsAnHour, end, nearest_[i].wind, place);
            nearest_[i] = {};
        }
    }

    const Control& control_;
    std::vector<NearestLevel> nearest_;
};

}  // namespace

std::unique_ptr<InputReader> makeAermetProfile(const Control& control) {
    return std::make_unique<AermetProfile>(control);
}

}  // namespace zg::tempoline
