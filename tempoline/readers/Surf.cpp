#include <array>
#include <cmath>
#include <map>
#include <set>

#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/HeaderLines.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t stationFields = 8;
constexpr int mostStations = 1'000'000;
constexpr int noRow = -1;

/// A line with the time, then one per station. Version 2.0 stamps hours with their end.
class Surf : public InputReader {
 public:
    explicit Surf(const Control& control) : control_(control) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path);
        readHeader(lines);
        std::optional<Seconds> last;
        std::string_view line;
        while (lines.next(line)) {
            if (stripped(line).empty()) continue;
            readTimes(lines, line);
            readStations(lines, series);
            last = end_;
        }
        noteEnd(path, promised_, last);
    }

 private:
    void readHeader(LineSource& lines) {
        hasSeconds_ = versionOf(lines, InputKind::Surf) == "2.1";
        skipComments(lines);
        lines.need("the line after the comments");
        if (hasSeconds_) fileOffset_ = zoneField(lines, lines.need("the time zone"));
        const std::string_view line = lines.need("the period");
        std::array<std::string_view, 9> fields;
        const std::size_t count = splitBlanks(line, fields);
        const std::size_t needed = hasSeconds_ ? 9 : 8;
        if (count < needed) throw lines.failure("period", std::to_string(needed) + " numbers are needed");
        if (!hasSeconds_) {
            const double west = numberField(lines, fields[6], "time zone");
            if (std::abs(west) > 14) throw lines.failure("time zone", "more than 14 hours");
            fileOffset_ = -std::llround(west * static_cast<double>(secondsAnHour));
        }
        promised_ = hasSeconds_ ? promisedEnd(fields[4], fields[5], fields[6], fields[7])
                                : promisedEnd(fields[3], fields[4], fields[5], "0");
        if (promised_) *promised_ += control_.zoneOffset - fileOffset_;
        noteShift(control_, fileOffset_);
        stationCount_ = wholeField(lines, fields[needed - 1], "number of stations");
        if (stationCount_ < 1 || stationCount_ > mostStations)
            throw lines.failure("number of stations", std::to_string(stationCount_) + " is out of range");
        readStationNames(lines);
    }

    /// An output has the number of its row; in a file with other rows the station is found by its name. Only
    /// requested names are stored, however many and long the others are.
    void readStationNames(LineSource& lines) {
        std::map<std::string, int, std::less<>> firstRows;
        std::map<int, std::string_view> ownNames;
        for (const OutputRequest& output : control_.outputs) {
            firstRows.emplace(output.station, noRow);
            ownNames.emplace(output.id - 1, output.station);
        }
        std::set<int> ownRows;
        for (int row = 0; row < stationCount_; ++row) {
            const std::string_view name = stripped(lines.need("a station"));
            const auto found = firstRows.find(name);
            if (found == firstRows.end()) continue;
            if (found->second == noRow) found->second = row;
            const auto own = ownNames.find(row);
            if (own != ownNames.end() && own->second == name) ownRows.insert(row);
        }
        rows_.clear();
        for (std::size_t i = 0; i < control_.outputs.size(); ++i) {
            const OutputRequest& output = control_.outputs[i];
            const bool isOwn = ownRows.count(output.id - 1) > 0;
            const int row = isOwn ? output.id - 1 : firstRows.find(output.station)->second;
            if (row == noRow)
                throw lines.failure("stations", "there is no station \"" + output.station + "\"");
            rows_.emplace(row, i);
            noteOutput(i, entryLine("Row of the station", std::to_string(row + 1) + " of " +
                                                              std::to_string(stationCount_) +
                                                              "; the others are passed over"));
        }
    }

    void readTimes(const LineSource& lines, std::string_view line) {
        std::array<std::string_view, 8> fields;
        const std::size_t count = splitBlanks(line, fields);
        const std::size_t needed = hasSeconds_ ? 8 : 3;
        if (count < needed) throw lines.failure("time", std::to_string(needed) + " numbers are needed");
        const Seconds shift = control_.zoneOffset - fileOffset_;
        begin_ = julianStampOf(lines, fields[0], fields[1], fields[2], hasSeconds_ ? fields[3] : "0") + shift;
        end_ = begin_;
        if (hasSeconds_)
            end_ = julianStampOf(lines, fields[4], fields[5], fields[6], fields[7]) + shift;
        else
            begin_ -= secondsAnHour;
    }

    void readStations(LineSource& lines, std::vector<Series>& series) {
        int row = 0;
        for (auto at = rows_.begin(); at != rows_.end();) {
            lines.skip(static_cast<std::size_t>(at->first - row), "a station's values");
            row = at->first + 1;
            const Wind wind = windOfLine(lines, lines.need("a station's values"));
            for (const int own = at->first; at != rows_.end() && at->first == own; ++at)
                series[at->second].add(begin_, end_, wind, lines);
        }
        lines.skip(static_cast<std::size_t>(stationCount_ - row), "a station's values");
    }

    static Wind windOfLine(const LineSource& lines, std::string_view line) {
        std::array<std::string_view, stationFields> fields;
        const std::size_t count = splitBlanks(line, fields);
        if (count < stationFields)
            throw lines.failure("", "the line has " + std::to_string(count) + " of at least 8 fields");
        return {valueField(lines, fields[0], "wind speed"), valueField(lines, fields[1], "wind direction")};
    }

    const Control& control_;
    bool hasSeconds_ = false;
    Seconds fileOffset_ = 0;
    int stationCount_ = 0;
    std::multimap<int, std::size_t> rows_;  ///< row of the station, and the output that uses it
    Seconds begin_ = 0;
    Seconds end_ = 0;
    std::optional<Seconds> promised_;  ///< end of the data according to the header, in the zone of the run
};

}  // namespace

std::unique_ptr<InputReader> makeSurf(const Control& control) { return std::make_unique<Surf>(control); }

}  // namespace zg::tempoline
