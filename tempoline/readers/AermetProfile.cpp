#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t fieldCount = 8;  // up to the wind
constexpr std::size_t levelHeightField = 4;
constexpr double farAway = 10;          // metres between height and level that are reported
constexpr std::size_t mostToTell = 20;  // distinct levels

struct NearestLevel {
    bool any = false;
    double height = 0;
    Wind wind;
};

/// Counts hours by the height of the level used for an output; stops at a thousand heights, whatever the file
/// holds.
class LevelsUsed {
 public:
    void add(double height) {
        lowest_ = std::min(lowest_, height);
        highest_ = std::max(highest_, height);
        const auto found = hours_.find(height);
        if (found != hours_.end())
            ++found->second;
        else if (hours_.size() < mostHeights)
            hours_.emplace(height, 1);
        else
            ++others_;
    }

    bool isEmpty() const { return hours_.empty(); }
    const std::map<double, std::int64_t>& hours() const { return hours_; }
    std::int64_t others() const { return others_; }
    double lowest() const { return lowest_; }
    double highest() const { return highest_; }

 private:
    static constexpr std::size_t mostHeights = 1000;
    std::map<double, std::int64_t> hours_;
    std::int64_t others_ = 0;
    double lowest_ = std::numeric_limits<double>::infinity();
    double highest_ = -std::numeric_limits<double>::infinity();
};

/// Several lines per hour, one per level, stamped with its end, in the zone of the run.
class AermetProfile : public InputReader {
 public:
    explicit AermetProfile(const Control& control)
        : control_(control), nearest_(control.outputs.size()), used_(control.outputs.size()) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        noteNoShift(control_);
        std::string_view line;
        std::array<std::string_view, fieldCount> fields;
        bool open = false;
        Seconds end = 0;
        std::size_t firstLine = 0;  // of the current hour
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

    void finish() override {
        for (std::size_t i = 0; i < used_.size(); ++i) {
            if (used_[i].isEmpty()) continue;
            tellLevels(i, control_.outputs[i].height);
            tellDistance(i, control_.outputs[i].height);
        }
    }

 private:
    static std::string levelLine(double height, double asked, std::int64_t hours) {
        std::string text = metresText(height) + " m, ";
        if (height != asked)
            text += metresText(roundedToMillionth(std::abs(height - asked))) + " m " +
                    (height < asked ? "below" : "above") + " the asked height, ";
        return entryLine("Level used", text + "in " + std::to_string(hours) + " hours");
    }

    void tellLevels(std::size_t output, double asked) {
        std::int64_t others = used_[output].others();
        std::size_t told = 0;
        for (const auto& [height, hours] : used_[output].hours()) {
            if (told++ < mostToTell)
                noteOutput(output, levelLine(height, asked, hours));
            else
                others += hours;
        }
        if (others > 0)
            noteOutput(output, entryLine("Other levels", "in " + std::to_string(others) + " hours"));
    }

    /// In the listing and on standard error: the other results state the requested height.
    void tellDistance(std::size_t output, double asked) {
        const double lowest = used_[output].lowest();
        const double highest = used_[output].highest();
        const double distance = std::max(std::abs(lowest - asked), std::abs(highest - asked));
        if (distance == 0) return;
        std::string text = control_.outputs[output].name + ": the wind of " + metresText(asked) +
                           " m is that of the nearest level, " + metresText(lowest) + " m";
        if (highest > lowest) text += " to " + metresText(highest) + " m";
        text += ", up to " + metresText(roundedToMillionth(distance)) + " m away";
        noteOutput(output, (distance > farAway ? "WARNING: " : "NOTE: ") + text);
    }

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
            const NearestLevel& nearest = nearest_[i];
            if (nearest.any) used_[i].add(nearest.height);
            series[i].add(end - secondsAnHour, end, nearest.wind, place,
                          nearest.any ? MissingReason::Values : MissingReason::NoLevel);
            nearest_[i] = {};
        }
    }

    const Control& control_;
    std::vector<NearestLevel> nearest_;
    std::vector<LevelsUsed> used_;
};

}  // namespace

std::unique_ptr<InputReader> makeAermetProfile(const Control& control) {
    return std::make_unique<AermetProfile>(control);
}

}  // namespace zg::tempoline
