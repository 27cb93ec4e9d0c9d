#include <array>
#include <cmath>
#include <map>

#include "base/Text.h"
#include "formats/Grids.h"
#include "tempoline/Fields.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/Grid.h"
#include "tempoline/readers/GridReport.h"
#include "tempoline/readers/HeaderLines.h"
#include "tempoline/readers/Levels.h"
#include "tempoline/readers/Readers.h"
#include "tempoline/readers/Stamp.h"

namespace zg::tempoline {

namespace {

/// A required row of values in the file, and its required columns.
struct NeededRow {
    std::size_t number = 0;           ///< index among the rows of a component, all levels, south first
    std::vector<std::size_t> values;  ///< indices into the values of the step, parallel to `columns`
    std::vector<int> columns;         ///< from 1, rising
};

/// Fields of wind components of a diagnostic model, step by step. Only the rows around the places are
/// converted to numbers.
class Ventos : public InputReader {
 public:
    explicit Ventos(const Control& control) : control_(control) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path, ReadAhead::Yes);
        readHeader(lines);
        findRows();
        std::optional<Seconds> last;
        std::string_view line;
        while (lines.next(line)) {
            if (stripped(line).empty()) continue;
            std::array<std::string_view, 6> fields;
            if (splitBlanks(line, fields) != 5) throw lines.failure("time", "5 numbers are needed");
            const Seconds begin = stampOf(lines, fields[0], fields[1], fields[2], fields[3], fields[4]) +
                                  control_.zoneOffset - fileOffset_;
            readComponent(lines, u_, "a row of u");
            readComponent(lines, v_, "a row of v");
            for (std::size_t i = 0; i < series.size(); ++i)
                series[i].add(begin, begin + fileStep_, windOfOutput(i), lines, reasonOf(i));
            last = begin + fileStep_;
        }
        noteEnd(path, promised_, last);
    }

 private:
    void readHeader(LineSource& lines) {
        versionOf(lines, InputKind::Ventos);
        skipComments(lines);
        std::array<std::string_view, 12> fields;
        if (splitBlanks(lines.need("the period"), fields) < fields.size())
            throw lines.failure("period", "12 fields are needed");
        fileOffset_ = zoneField(lines, fields[10]);
        fileStep_ = wholeField(lines, fields[11], "step");
        if (fileStep_ < 1) throw lines.failure("step", "it must be above 0");
        promised_ = promisedEnd(fields[5], fields[6], fields[7], fields[8], fields[9]);
        if (promised_) *promised_ += control_.zoneOffset - fileOffset_;
        noteShift(control_, fileOffset_);
        readProjection(lines);
        readGrid(lines);
        readFaces(lines);
        note(gridLines(grid_));
        tellLevels();
    }

    void readProjection(LineSource& lines) {
        std::array<std::string_view, 10> fields;
        if (splitBlanks(lines.need("the projection"), fields) < fields.size())
            throw lines.failure("projection", "10 fields are needed");
        MapSetting& map = grid_.map;
        map = {};
        map.projection = ucase(fields[0]);
        if (!hasMap(InputKind::Ventos, map.projection))
            throw lines.failure("PMAP", "\"" + map.projection + "\" is no known projection");
        map.datum = fields[1];
        if (!datumDefinition(map.datum)) throw lines.failure("DATUM", unknownDatum(map.datum));
        map.southern = ucase(fields[2]) == "S";
        map.utmZone = ucase(fields[3]) == "NONE" ? 0 : wholeField(lines, fields[3], "IUTMZN");
        if (map.projection == "UTM" && (map.utmZone < 1 || map.utmZone > 60))
            throw lines.failure("IUTMZN", std::to_string(map.utmZone) + " is not between 1 and 60");
        map.falseEasting = kilometresField(lines, fields[4], "FEAST");
        map.falseNorthing = kilometresField(lines, fields[5], "FNORTH");
        map.latitude0 = degreesField(lines, fields[6], "RLAT0");
        map.longitude0 = degreesField(lines, fields[7], "RLON0");
        map.latitude1 = degreesField(lines, fields[8], "XLAT1");
        map.latitude2 = degreesField(lines, fields[9], "XLAT2");
        needPolarParallel(lines, map);
    }

    void readGrid(LineSource& lines) {
        std::array<std::string_view, 6> fields;
        if (splitBlanks(lines.need("the grid"), fields) < fields.size())
            throw lines.failure("grid", "6 numbers are needed");
        grid_.firstI = grid_.firstJ = 1;
        grid_.lastI = sizeField(lines, fields[0], "nx", mostCellsOfSide);
        grid_.lastJ = sizeField(lines, fields[1], "ny", mostCellsOfSide);
        levelCount_ = static_cast<std::size_t>(sizeField(lines, fields[2], "nz", mostLevelsOfGrid));
        grid_.cellSize = numberField(lines, fields[5], "cell size");
        if (!(grid_.cellSize > 0)) throw lines.failure("cell size", "it must be above 0");
        grid_.x1 = numberField(lines, fields[3], "X of the corner") + grid_.cellSize / 2;
        grid_.y1 = numberField(lines, fields[4], "Y of the corner") + grid_.cellSize / 2;
    }

    static int sizeField(const LineSource& lines, std::string_view field, std::string_view name, int most) {
        const int size = wholeField(lines, field, name);
        if (size < 1 || size > most)
            throw lines.failure(name, std::to_string(size) + " is not between 1 and " + std::to_string(most));
        return size;
    }

    /// The heights of the faces may continue on further lines; a level is in the middle between two faces.
    void readFaces(LineSource& lines) {
        std::vector<double> faces;
        std::string_view line;
        while (faces.size() < levelCount_ + 1) {
            line = lines.need("a cell face height");
            std::array<std::string_view, 1> field;
            while (splitBlanks(line, field) == 1) {
                faces.push_back(numberField(lines, field[0], "cell face height"));
                if (faces.size() > 1 && faces.back() <= faces[faces.size() - 2])
                    throw lines.failure("cell face height", "the heights do not rise");
                line.remove_prefix(static_cast<std::size_t>(field[0].data() + field[0].size() - line.data()));
            }
        }
        if (faces.size() != levelCount_ + 1)
            throw lines.failure("cell face height", "there are more of them than nz + 1");
        heights_.clear();
        for (std::size_t k = 0; k < levelCount_; ++k) heights_.push_back((faces[k] + faces[k + 1]) / 2);
    }

    /// The two levels around a height; the same one twice at a level, and below the first.
    struct LevelPair {
        std::size_t low = 0;
        std::size_t high = 0;
        bool isAbove = false;  ///< above the last level: no wind
    };

    LevelPair levelsAround(double height) const {
        std::size_t high = 0;
        while (high < heights_.size() && heights_[high] < height - sameHeight) ++high;
        if (high == heights_.size()) return {0, 0, true};
        if (high == 0 || heights_[high] <= height + sameHeight) return {high, high, false};
        return {high - 1, high, false};
    }

    bool isBelowFirst(double height) const { return height < heights_.front() - sameHeight; }

    void findRows() {
        shares_.clear();
        pairs_.clear();
        places_.clear();
        turns_.clear();
        std::map<std::size_t, std::map<int, std::size_t>> rows;
        std::size_t count = 0;
        for (const OutputRequest& output : control_.outputs) {
            const std::size_t number = shares_.size();
            const GridPlace place = placeIn(grid_, output, control_);
            shares_.push_back(cellsAround(place, output, control_.method, grid_));
            pairs_.push_back(levelsAround(output.height));
            turns_.push_back(convergenceAt(place.onMap, grid_.map));
            noteOutput(number, placeLines(place, shares_.back(), control_, grid_));
            noteOutput(number, entryLine("Grid north", fixedText(turns_.back(), 6) +
                                                           " degrees clockwise of true north; added to the "
                                                           "directions of the data"));
            tellHeight(number, pairs_.back());
            places_.emplace_back();
            for (const std::size_t level : {pairs_.back().low, pairs_.back().high}) {
                for (const CellShare& share : shares_.back()) {
                    const std::size_t row =
                        level * static_cast<std::size_t>(grid_.lastJ) + static_cast<std::size_t>(share.j - 1);
                    const auto [value, isNew] = rows[row].emplace(share.i, count);
                    if (isNew) ++count;
                    places_.back().push_back(value->second);
                }
            }
        }
        rows_.clear();
        for (const auto& [number, cells] : rows) {
            NeededRow& row = rows_.emplace_back();
            row.number = number;
            for (const auto& [column, value] : cells) {
                row.columns.push_back(column);
                row.values.push_back(value);
            }
        }
        u_.assign(count, missingValue);
        v_.assign(count, missingValue);
    }

    void tellLevels() {
        std::string text;
        for (const double height : heights_) text += (text.empty() ? "" : ", ") + metresText(height);
        note(entryLine("Levels of the data (m)", text));
    }

    void tellHeight(std::size_t number, const LevelPair& pair) {
        const OutputRequest& output = control_.outputs[number];
        const std::string low = metresText(heights_[pair.low]) + " m";
        if (pair.isAbove) {
            note("WARNING: " + metresText(output.height) + " m lies above the last level, " +
                 metresText(heights_.back()) + " m: there is no wind");
        } else if (isBelowFirst(output.height)) {
            noteOutput(number, entryLine("Level used", low + ", by the neutral logarithmic profile over a "
                                                             "roughness of 0.1 m"));
        } else if (pair.low == pair.high) {
            noteOutput(number, entryLine("Level used", low));
        } else {
            const double share = shareOfHigh(pair, output.height);
            noteOutput(number, entryLine("Levels and weights", low + " by " + fixedText(1 - share, 6) + "; " +
                                                                   metresText(heights_[pair.high]) +
                                                                   " m by " + fixedText(share, 6)));
        }
    }

    double shareOfHigh(const LevelPair& pair, double height) const {
        return (height - heights_[pair.low]) / (heights_[pair.high] - heights_[pair.low]);
    }

    void readComponent(LineSource& lines, std::vector<double>& values, std::string_view what) {
        std::size_t at = 0;
        for (const NeededRow& row : rows_) {
            lines.skip(row.number - at, what);
            readRow(lines, lines.need(what), row, values, what);
            at = row.number + 1;
        }
        lines.skip(levelCount_ * static_cast<std::size_t>(grid_.lastJ) - at, what);
    }

    void readRow(const LineSource& lines, std::string_view line, const NeededRow& row,
                 std::vector<double>& values, std::string_view what) const {
        std::array<std::string_view, 1> field;
        std::size_t next = 0;
        int column = 0;
        while (splitBlanks(line, field) == 1) {
            ++column;
            line.remove_prefix(static_cast<std::size_t>(field[0].data() + field[0].size() - line.data()));
            if (next < row.columns.size() && row.columns[next] == column)
                values[row.values[next++]] = valueField(lines, field[0], what);
        }
        if (column != grid_.lastI)
            throw lines.failure(
                what, "it has " + std::to_string(column) + " of " + std::to_string(grid_.lastI) + " values");
    }

    /// Components at one of the levels of an output, with their weights.
    bool sumAt(std::size_t output, std::size_t level, Components& sum) const {
        const std::vector<CellShare>& shares = shares_[output];
        for (std::size_t k = 0; k < shares.size(); ++k) {
            const std::size_t value = places_[output][level * shares.size() + k];
            if (!(std::abs(u_[value]) <= highestSpeed) || !(std::abs(v_[value]) <= highestSpeed))
                return false;
            sum.u += shares[k].weight * u_[value];
            sum.v += shares[k].weight * v_[value];
        }
        return true;
    }

    Wind windOfOutput(std::size_t output) const {
        const LevelPair& pair = pairs_[output];
        const double height = control_.outputs[output].height;
        Components low;
        Components high;
        if (pair.isAbove || !sumAt(output, 0, low) || !sumAt(output, 1, high)) return {};
        if (pair.low != pair.high) {
            const double share = shareOfHigh(pair, height);
            low.u += share * (high.u - low.u);
            low.v += share * (high.v - low.v);
        }
        const Wind wind = turned(windOf(low), turns_[output]);
        return isBelowFirst(height) ? neutralProfile(wind, heights_.front(), height) : wind;
    }

    MissingReason reasonOf(std::size_t output) const {
        return pairs_[output].isAbove ? MissingReason::NoLevel : MissingReason::Values;
    }

    const Control& control_;
    Grid grid_;
    Seconds fileOffset_ = 0;
    Seconds fileStep_ = secondsAnHour;
    std::optional<Seconds> promised_;  ///< end of the data according to the header, in the zone of the run
    std::size_t levelCount_ = 0;
    std::vector<double> heights_;                   ///< of the levels
    std::vector<std::vector<CellShare>> shares_;    ///< by output
    std::vector<LevelPair> pairs_;                  ///< by output
    std::vector<double> turns_;                     ///< by output: from grid north to true north, degrees
    std::vector<std::vector<std::size_t>> places_;  ///< by output: values of its cells, lowest level first
    std::vector<NeededRow> rows_;                   ///< rising
    std::vector<double> u_;
    std::vector<double> v_;
};

}  // namespace

std::unique_ptr<InputReader> makeVentos(const Control& control) { return std::make_unique<Ventos>(control); }

}  // namespace zg::tempoline
