#include <array>
#include <cmath>

#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/HeaderLines.h"
#include "tempoline/readers/Levels.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr int mostSoundingLevels = 100'000;
constexpr double missingHeight = 9999;
constexpr std::size_t levelFields = 5;
constexpr std::size_t levelsALine = 4;

bool isSeparator(char c) { return c == ',' || c == '/'; }

/// Takes the next value of a level off the line; it is empty between two separators, and after one at the end
/// of the line. Returns whether a separator followed the value.
std::string_view nextValue(std::string_view& line, bool& separated) {
    line = stripped(line);
    std::size_t end = 0;
    while (end < line.size() && !isBlank(line[end]) && !isSeparator(line[end])) ++end;
    const std::string_view value = line.substr(0, end);
    line = stripped(line.substr(end));
    separated = !line.empty() && isSeparator(line[0]);
    if (separated) line.remove_prefix(1);
    return value;
}

/// Soundings: a line with the time, then levels, up to four per line. Version 2.0 stamps the end of an hour
/// in UTC, the zone of soundings; version 2.1 states begin, end and zone.
class Up : public InputReader {
 public:
    explicit Up(const Control& control) : control_(control) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        readHeader(lines);
        std::optional<Seconds> last;
        Seconds lastBegin = 0;
        Seconds spacing = 0;  // interval at which soundings are due
        std::string_view line;
        while (lines.next(line)) {
            if (stripped(line).empty()) continue;
            const int count = readTimes(lines, line);
            readLevels(lines, count);
            for (std::size_t i = 0; i < series.size(); ++i) giveWind(series[i], i, lines);
            if (last) spacing = begin_ - lastBegin;
            last = end_;
            lastBegin = begin_;
        }
        noteEnd(path, promised_, last, spacing);
    }

    void finish() override {
        for (std::size_t i = 0; i < control_.outputs.size(); ++i)
            noteOutput(i,
                       entryLine("Levels used", "the two around " + metresText(control_.outputs[i].height) +
                                                    " m above the lowest level, by the heights of each "
                                                    "sounding"));
    }

 private:
    void readHeader(LineSource& lines) {
        hasSeconds_ = versionOf(lines, InputKind::Up) == "2.1";
        skipComments(lines);
        lines.need("the line after the comments");
        if (hasSeconds_) fileOffset_ = zoneField(lines, lines.need("the time zone"));
        readPeriod(lines.need("the period"));
        noteShift(control_, fileOffset_);
        lines.need("the line after the period");
        std::array<std::string_view, 2> fields;
        if (splitBlanks(lines.need("the station"), fields) < 2)
            throw lines.failure("station", "the second field is missing");
        facts.station = fields[1];
    }

    void readPeriod(std::string_view line) {
        std::array<std::string_view, 8> fields;
        const std::size_t count = splitBlanks(line, fields);
        promised_.reset();
        if (hasSeconds_ && count == 8) promised_ = promisedEnd(fields[4], fields[5], fields[6], fields[7]);
        if (!hasSeconds_ && count >= 6) promised_ = promisedEnd(fields[3], fields[4], fields[5], "0");
        if (promised_) *promised_ += control_.zoneOffset - fileOffset_;
    }

    void giveWind(Series& series, std::size_t output, const LineSource& lines) const {
        const Wind wind = windAbove(control_.outputs[output].height);
        series.add(begin_, end_, wind, lines,
                   hasSpeed(wind) ? MissingReason::Values : MissingReason::NoLevel);
    }

    int readTimes(const LineSource& lines, std::string_view line) {
        std::array<std::string_view, 14> fields;
        const std::size_t needed = hasSeconds_ ? 14 : 8;
        if (splitBlanks(line, fields) < needed)
            throw lines.failure("time", std::to_string(needed) + " fields are needed");
        const Seconds shift = control_.zoneOffset - fileOffset_;
        begin_ =
            stampOf(lines, fields[2], fields[3], fields[4], fields[5], hasSeconds_ ? fields[6] : "0") + shift;
        end_ = begin_;
        if (hasSeconds_)
            end_ = stampOf(lines, fields[7], fields[8], fields[9], fields[10], fields[11]) + shift;
        else
            begin_ -= secondsAnHour;
        const int count = wholeField(lines, fields[needed - 1], "number of levels");
        if (count < 0 || count > mostSoundingLevels)
            throw lines.failure("number of levels", std::to_string(count) + " is out of range");
        return count;
    }

    void readLevels(LineSource& lines, int count) {
        levels_.clear();
        ground_ = missingValue;
        std::string_view line;
        std::size_t onLine = 0;
        for (int i = 0; i < count; ++i) {
            if (stripped(line).empty() || onLine == levelsALine) {
                if (!stripped(line).empty()) throw lines.failure("levels", "more than four are on a line");
                line = lines.need("a level");
                onLine = 0;
            }
            ++onLine;
            readLevel(lines, line);
        }
        if (!stripped(line).empty()) throw lines.failure("levels", "more of them than the sounding has");
    }

    void readLevel(const LineSource& lines, std::string_view& line) {
        static constexpr std::array<std::string_view, levelFields> names = {
            "pressure", "height", "temperature", "wind direction", "wind speed"};
        std::array<double, levelFields> values{};
        bool separated = false;
        for (std::size_t k = 0; k < levelFields; ++k) {
            if (!separated && stripped(line).empty())
                throw lines.failure(names[k], "the line ends within a level");
            values[k] = valueField(lines, nextValue(line, separated), names[k]);
        }
        const double height = values[1];
        if (!hasValue(height) || height == missingHeight) return;
        if (!hasValue(ground_)) ground_ = last_ = height;
        if (height < last_) throw lines.failure("height", "the levels of the sounding do not rise");
        const bool repeated = !levels_.empty() && levels_.back().height == height;
        last_ = height;
        const Wind wind = {values[4], values[3]};
        if (hasComponents(wind) && !repeated) levels_.push_back({height, wind});
    }

    /// Levels without a wind are skipped, so that the levels next to the height have one.
    Wind windAbove(double height) const {
        return hasValue(ground_) ? windAtHeight(levels_, ground_ + height) : Wind{};
    }

    const Control& control_;
    bool hasSeconds_ = false;
    Seconds fileOffset_ = 0;
    Seconds begin_ = 0;
    Seconds end_ = 0;
    double ground_ = missingValue;  ///< height of the lowest level
    double last_ = 0;               ///< height of the previous level
    std::vector<Level> levels_;
    std::optional<Seconds> promised_;  ///< end of the data according to the header, in the zone of the run
};

}  // namespace

std::unique_ptr<InputReader> makeUp(const Control& control) { return std::make_unique<Up>(control); }

}  // namespace zg::tempoline
