#include <algorithm>
#include <array>
#include <limits>
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

constexpr std::size_t surfaceFields = 12;  // up to the 10 m wind

/// The data of one cell for an hour.
struct Column {
    Wind tenMetres;
    std::vector<Level> levels;
};

/// How the winds of an output were obtained, per cell and hour.
struct LevelUse {
    double lowest = std::numeric_limits<double>::infinity();    ///< lowest level used, metres
    double highest = -std::numeric_limits<double>::infinity();  ///< highest level used
    std::int64_t between = 0;                                   ///< at a level or between two
    std::int64_t below = 0;                                     ///< the first level was used
    std::int64_t above = 0;                                     ///< the last level was used, or none
};

/// A required cell: its number in file order, and its index in the columns of the hour.
struct NeededCell {
    std::size_t order = 0;
    std::size_t column = 0;
    int i = 0;
    int j = 0;
};

/// Hours of a mesoscale model, each stamped with its begin in UTC, with all cells one after the other. Only
/// lines of the required cells are converted to numbers.
class M3d : public InputReader {
 public:
    explicit M3d(const Control& control) : control_(control), uses_(control.outputs.size()) {}

    void read(const std::string& path, std::vector<Series>& series) override {
        LineSource lines(path, ReadAhead::Yes);
        readHeader(lines);
        findCells(lines);
        last_.reset();
        std::string_view line;
        while (nextHour(lines, line)) readHour(lines, line, series);
        noteEnd(path, promised_, last_);
    }

    void finish() override {
        for (std::size_t i = 0; i < uses_.size(); ++i) {
            const LevelUse& use = uses_[i];
            std::string text = "by the heights of each cell and hour";
            if (use.lowest <= use.highest)
                text += ", " + metresText(use.lowest) + " m to " + metresText(use.highest) + " m";
            noteOutput(i, entryLine("Levels used", text));
            noteOutput(i, entryLine("  at and between them", std::to_string(use.between) + " times"));
            noteOutput(i, entryLine("  below the first", std::to_string(use.below) + " times"));
            noteOutput(i, entryLine("  above the last", std::to_string(use.above) + " times"));
        }
    }

 private:
    static bool nextHour(LineSource& lines, std::string_view& line) {
        while (lines.next(line)) {
            if (!stripped(line).empty()) return true;
        }
        return false;
    }

    void readHeader(LineSource& lines) {
        versionOf(lines, InputKind::M3d);
        skipComments(lines);
        lines.need("the flags");
        readProjection(lines, lines.need("the projection"));
        lines.need("the options of the model");
        const std::array<int, 3> sizes = sizesOf(lines, lines.need("the first time"));
        readExtract(lines);
        note(gridLines(grid_));
        noteShift(control_, 0);
        if (sizes[0] != grid_.lastI - grid_.firstI + 1 || sizes[1] != grid_.lastJ - grid_.firstJ + 1 ||
            sizes[2] != levelCount_)
            throw lines.failure("bounds of the extract",
                                "they do not agree with nx, ny and nz of the line before");
        lines.skip(static_cast<std::size_t>(levelCount_), "a sigma level");
    }

    void readProjection(const LineSource& lines, std::string_view line) {
        std::array<std::string_view, 11> fields;
        if (splitBlanks(line, fields) < fields.size())
            throw lines.failure("projection", "11 fields are needed");
        MapSetting& map = grid_.map;
        map = {};
        map.projection = ucase(fields[0]);
        if (!hasMap(InputKind::M3d, map.projection))
            throw lines.failure("projection", "\"" + map.projection + "\" is none of LCC, PS, EM and LL");
        map.datum = sphereOfModels;
        map.latitude0 = degreesField(lines, fields[1], "RLAT0");
        map.longitude0 = degreesField(lines, fields[2], "RLON0");
        map.latitude1 = degreesField(lines, fields[3], "XLAT1");
        map.latitude2 = degreesField(lines, fields[4], "XLAT2");
        needPolarParallel(lines, map);
        grid_.x1 = numberField(lines, fields[5], "X of cell (1,1)");
        grid_.y1 = numberField(lines, fields[6], "Y of cell (1,1)");
        grid_.cellSize = numberField(lines, fields[7], "cell size");
        if (!(grid_.cellSize > 0)) throw lines.failure("cell size", "it must be above 0");
    }

    /// nx, ny and nz of the extract, after the first time and the number of hours.
    std::array<int, 3> sizesOf(const LineSource& lines, std::string_view line) {
        std::array<std::string_view, 5> fields;
        if (splitBlanks(line, fields) < fields.size())
            throw lines.failure("first time", "5 numbers are needed");
        promised_.reset();
        const std::string_view stamp = fields[0];
        const std::optional<int> hours = wholeOf(fields[1]);
        if (stamp.size() == 10 && hours)
            promised_ = promisedEnd(stamp.substr(0, 4), stamp.substr(4, 2), stamp.substr(6, 2),
                                    stamp.substr(8, 2), "0");
        if (promised_) *promised_ += *hours * secondsAnHour + control_.zoneOffset;
        return {wholeField(lines, fields[2], "nx"), wholeField(lines, fields[3], "ny"),
                wholeField(lines, fields[4], "nz")};
    }

    void readExtract(LineSource& lines) {
        std::array<std::string_view, 6> fields;
        if (splitBlanks(lines.need("the bounds of the extract"), fields) < fields.size())
            throw lines.failure("bounds of the extract", "6 numbers are needed");
        std::array<int, 6> bounds{};
        for (std::size_t k = 0; k < bounds.size(); ++k) {
            bounds[k] = wholeField(lines, fields[k], "bounds of the extract");
            if (bounds[k] < 1 || bounds[k] > mostCellsOfSide)
                throw lines.failure("bounds of the extract", std::to_string(bounds[k]) + " is out of range");
        }
        grid_.firstI = bounds[0];
        grid_.firstJ = bounds[1];
        grid_.lastI = bounds[2];
        grid_.lastJ = bounds[3];
        levelCount_ = bounds[5] - bounds[4] + 1;
        if (grid_.lastI < grid_.firstI || grid_.lastJ < grid_.firstJ || levelCount_ < 1)
            throw lines.failure("bounds of the extract", "they do not rise");
        cellCount_ = static_cast<std::size_t>(grid_.lastI - grid_.firstI + 1) *
                     static_cast<std::size_t>(grid_.lastJ - grid_.firstJ + 1);
    }

    /// The lines of the cells give their order in each hour.
    void findCells(LineSource& lines) {
        shares_.clear();
        std::map<std::pair<int, int>, std::size_t> columns;
        for (const OutputRequest& output : control_.outputs) {
            const std::size_t number = shares_.size();
            const GridPlace place = placeIn(grid_, output, control_);
            shares_.push_back(cellsAround(place, output, control_.method, grid_));
            noteOutput(number, placeLines(place, shares_.back(), control_, grid_));
            noteOutput(number, entryLine("Grid north",
                                         "does not count: the directions of the data are by "
                                         "true north"));
            for (const CellShare& share : shares_.back())
                columns.emplace(std::pair(share.i, share.j), columns.size());
        }
        columns_.assign(columns.size(), {});
        needed_.clear();
        for (std::size_t order = 0; order < cellCount_; ++order) {
            std::array<std::string_view, 2> fields;
            if (splitBlanks(lines.need("a cell"), fields) < 2)
                throw lines.failure("cell", "i and j are needed");
            const std::pair cell(wholeField(lines, fields[0], "i"), wholeField(lines, fields[1], "j"));
            const auto found = columns.find(cell);
            if (found != columns.end()) needed_.push_back({order, found->second, cell.first, cell.second});
        }
        if (needed_.size() != columns.size())
            throw lines.failure("cells", "a cell of the extract is missing or occurs twice");
        columnOf_ = std::move(columns);
    }

    void readHour(LineSource& lines, std::string_view firstLine, std::vector<Series>& series) {
        const Seconds begin = timeOf(lines, firstLine) + control_.zoneOffset;
        std::size_t order = 0;
        std::string_view line = firstLine;
        const std::size_t linesACell = static_cast<std::size_t>(levelCount_) + 1;
        bool atFirst = true;  // the first line of the hour is already read
        for (const NeededCell& cell : needed_) {
            std::size_t skipped = (cell.order - order) * linesACell;
            if (skipped > 0 && atFirst) {
                --skipped;
                atFirst = false;
            }
            lines.skip(skipped, "a cell of the hour");
            if (!atFirst) line = lines.need("a cell of the hour");
            atFirst = false;
            readColumn(lines, line, cell, begin);
            order = cell.order + 1;
        }
        lines.skip((cellCount_ - order) * linesACell - (atFirst ? 1 : 0), "a cell of the hour");
        for (std::size_t i = 0; i < series.size(); ++i) {
            const std::int64_t above = uses_[i].above;
            const Wind wind = windOfOutput(i);
            series[i].add(begin, begin + secondsAnHour, wind, lines,
                          uses_[i].above > above ? MissingReason::NoLevel : MissingReason::Values);
        }
        last_ = begin + secondsAnHour;
    }

    static Seconds timeOf(const LineSource& lines, std::string_view line) {
        std::array<std::string_view, 1> fields;
        splitBlanks(line, fields);
        const std::string_view stamp = fields[0];
        if (stamp.size() != 10 || stamp.find_first_not_of("0123456789") != std::string_view::npos)
            throw lines.failure("time", "a time as yyyymmddhh is needed");
        return stampOf(lines, stamp.substr(0, 4), stamp.substr(4, 2), stamp.substr(6, 2), stamp.substr(8, 2));
    }

    void readColumn(LineSource& lines, std::string_view line, const NeededCell& cell, Seconds begin) {
        std::array<std::string_view, surfaceFields> fields;
        if (splitBlanks(line, fields) < surfaceFields)
            throw lines.failure("cell", "at least 12 fields are needed");
        if (timeOf(lines, line) + control_.zoneOffset != begin)
            throw lines.failure("time", "the cells of an hour have different times");
        if (wholeField(lines, fields[1], "i") != cell.i || wholeField(lines, fields[2], "j") != cell.j)
            throw lines.failure("cell",
                                std::to_string(cell.i) + " " + std::to_string(cell.j) + " was expected here");
        Column& column = columns_[cell.column];
        column.tenMetres = {valueField(lines, fields[11], "ws10"), valueField(lines, fields[10], "wd10")};
        column.levels.clear();
        std::array<std::string_view, 5> parts;
        for (int k = 0; k < levelCount_; ++k) {
            if (splitBlanks(lines.need("a level"), parts) < parts.size())
                throw lines.failure("level", "at least 5 fields are needed");
            const Level level = {valueField(lines, parts[1], "height"),
                                 {valueField(lines, parts[4], "ws"), valueField(lines, parts[3], "wd")}};
            if (!hasValue(level.height)) continue;
            if (!column.levels.empty() && level.height <= column.levels.back().height)
                throw lines.failure("height", "the levels do not rise");
            column.levels.push_back(level);
        }
    }

    Wind windOfColumn(const Column& column, double height, LevelUse& use) const {
        if (column.levels.empty() || height > column.levels.back().height + sameHeight) {
            ++use.above;
            return {};
        }
        const Level& lowest = column.levels.front();
        if (height >= lowest.height - sameHeight) {
            countLevels(column, height, use);
            return windAtHeight(column.levels, height);
        }
        ++use.below;
        if (control_.profileMethod == directProfile) return column.tenMetres;
        use.lowest = std::min(use.lowest, lowest.height);
        use.highest = std::max(use.highest, lowest.height);
        return neutralProfile(lowest.wind, lowest.height, height);
    }

    static void countLevels(const Column& column, double height, LevelUse& use) {
        ++use.between;
        const std::size_t high = firstLevelFrom(column.levels, height);
        const bool isAtLevel = column.levels[high].height <= height + sameHeight;
        use.lowest = std::min(use.lowest, column.levels[isAtLevel ? high : high - 1].height);
        use.highest = std::max(use.highest, column.levels[high].height);
    }

    Wind windOfOutput(std::size_t output) {
        winds_.clear();
        for (const CellShare& share : shares_[output])
            winds_.push_back(windOfColumn(columns_[columnOf_.at({share.i, share.j})],
                                          control_.outputs[output].height, uses_[output]));
        return combined(shares_[output], winds_);
    }

    const Control& control_;
    Grid grid_;
    int levelCount_ = 0;
    std::size_t cellCount_ = 0;
    std::vector<std::vector<CellShare>> shares_;  ///< by output
    std::map<std::pair<int, int>, std::size_t> columnOf_;
    std::vector<NeededCell> needed_;  ///< in file order
    std::vector<Column> columns_;
    std::vector<Wind> winds_;
    std::vector<LevelUse> uses_;       ///< by output
    std::optional<Seconds> promised_;  ///< end of the data according to the header, in the zone of the run
    std::optional<Seconds> last_;      ///< end of the last hour in the file
};

}  // namespace

std::unique_ptr<InputReader> makeM3d(const Control& control) { return std::make_unique<M3d>(control); }

}  // namespace zg::tempoline
