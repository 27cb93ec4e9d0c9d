#include "headers/GridFileHeader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "base/Dates.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "formats/Grids.h"
#include "formats/Times.h"
#include "formats/ZoneKeys.h"

namespace zg {

namespace {

constexpr int longestName = 20;

std::string inQuotes(const std::string& field) { return "\"" + leftN(field, longestName) + "\""; }

/// One line's fields, separated by blanks and tabs.
class GridFields {
 public:
    GridFields(HeaderSource& source, std::string_view line) : source_(source) {
        for (std::size_t at = 0; (at = line.find_first_not_of(" \t", at)) != std::string_view::npos;) {
            const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
            fields_.emplace_back(line.substr(at, end - at));
            at = end;
        }
    }

    bool atEnd() const { return next_ >= fields_.size(); }

    /// The next field as a text.
    std::string text(const char* name) {
        if (atEnd()) fail(name, "is missing");
        return fields_[next_++];
    }
    std::int32_t whole(const char* name) {
        const std::string field = plainNumber(name);
        const double value = toDouble(field);
        if (value != std::floor(value) || !(std::abs(value) <= std::numeric_limits<std::int32_t>::max()))
            fail(name, inQuotes(field) + " is not a whole number");
        return static_cast<std::int32_t>(value);
    }
    float real(const char* name) { return toSingle(plainNumber(name)); }
    void cornerAndCellSize() {
        skip(2, "corner or cell size");
        if (!(real("corner or cell size") > 0)) fail("cell size", "must be above 0");
    }
    /// "NONE" means that a value is not used.
    bool skipUnused() {
        if (atEnd() || ucase(fields_[next_]) != "NONE") return false;
        ++next_;
        return true;
    }
    /// Degrees, signed or with the letter of the hemisphere.
    float angle(const char* name) {
        if (atEnd()) fail(name, "is missing");
        std::string& field = fields_[next_];
        if (skipUnused()) return 0;
        const std::string letter = ucase(rightN(field, 1));
        if (letter.find_first_of("NSEW") == std::string::npos) return real(name);
        field.pop_back();
        const float value = real(name);
        return letter == "S" || letter == "W" ? -value : value;
    }
    std::int32_t wholeFrom(std::int32_t least, std::int32_t most, const char* name) {
        const std::int32_t value = whole(name);
        if (value < least || value > most)
            fail(name, "must be between " + std::to_string(least) + " and " + std::to_string(most));
        return value;
    }
    void skip(int count, const char* name) {
        for (int i = 0; i < count; ++i) real(name);
    }
    [[noreturn]] void fail(const char* name, const std::string& problem) const {
        source_.atField(name);
        source_.fail(problem);
    }

 private:
    /// The next field, which can be converted: the conversions alone would also take grouping commas.
    std::string plainNumber(const char* name) {
        const std::string field = text(name);
        try {
            if (field.find(',') == std::string::npos && std::isfinite(toSingle(field))) return field;
        } catch (const RunTimeError&) {  // said below, with the field
        }
        fail(name, inQuotes(field) + " is not a number");
    }

    HeaderSource& source_;
    std::vector<std::string> fields_;
    std::size_t next_ = 0;
};

class GridHeader {
 public:
    GridHeader(HeaderSource& source, InfoViewResult& result) : source_(source), r_(result) {}

    /// Seconds of a record.
    std::int32_t read(InputKind kind) {
        readKind(formatOf(kind));
        skipComments();
        return kind == InputKind::M3d ? readM3d() : readVentos();
    }

 private:
    GridFields fields(const char* part) { return {source_, source_.readLine(part)}; }

    /// Examines only the first bytes: another kind of file may have no line end at all.
    void readKind(const Format& format) {
        const std::string kind(format.firstWord);
        const std::string_view begin = source_.ahead();
        const std::size_t word = std::min(begin.find_first_not_of(" \t"), begin.size());
        if (ucase(begin.substr(word, kind.size())) != kind) failKind(kind);
        GridFields first = fields("file type");
        if (ucase(first.text("name")) != kind) failKind(kind);
        if (const std::string found = first.text("version"); !format.hasVersion(found))
            first.fail("", "version " + leftN(found, longestName) + " is not known");
    }

    [[noreturn]] void failKind(const std::string& kind) {
        source_.atLine({1, "file type"});
        source_.fail("the file does not begin with " + kind);
    }

    /// The number, after which text may follow a hyphen, and the comments.
    void skipComments() {
        const std::string_view line = source_.readLine("number of comment lines");
        const std::int32_t comments =
            GridFields(source_, line.substr(0, line.find('-', 1))).wholeFrom(0, mostComments, "number");
        for (std::int32_t i = 0; i < comments; ++i) source_.readLine("comment");
    }

    std::int32_t readM3d() {
        source_.readLine("output flags");
        GridFields map = fields("projection");
        r_.PMAP = ucase(map.text("projection"));
        if (!hasMap(InputKind::M3d, r_.PMAP)) map.fail("projection", inQuotes(r_.PMAP) + " is not known");
        r_.RLAT0 = map.angle("RLAT0");
        r_.RLON0 = map.angle("RLON0");
        r_.XLAT1 = map.angle("XLAT1");
        r_.XLAT2 = map.angle("XLAT2");
        needPolarParallel(map);
        map.cornerAndCellSize();
        for (const char* name : {"nx", "ny", "nz"})
            map.text(name);  // of the model; those of the extract follow
        source_.readLine("model options");
        r_.DATUM = sphereOfModels;
        r_.timeZone = "UTC+0000";
        readExtract();
        return secondsOfHour;
    }

    void needPolarParallel(const GridFields& map) const {
        if (r_.PMAP == "PS" && r_.XLAT1 == 0) map.fail("XLAT1", "is missing: a polar map is true at it");
    }

    void readExtract() {
        GridFields extract = fields("extracted period and grid");
        const std::int32_t stamp = extract.wholeFrom(100'010'100, 2'147'483'647, "first time");
        r_.first = {stamp / 1'000'000, stamp / 10'000 % 100, stamp / 100 % 100, stamp % 100, 0};
        const std::int32_t hours = extract.wholeFrom(1, 10'000'000, "number of hours");
        const std::int32_t nx = extract.wholeFrom(1, mostCellsOfSide, "nx");
        const std::int32_t ny = extract.wholeFrom(1, mostCellsOfSide, "ny");
        const std::int32_t nz = extract.wholeFrom(1, mostCellsOfSide, "nz");
        const DateTime begin = moment(extract, r_.first);
        // Each record covers the hour that begins at its time.
        setTime(r_.last, addSeconds(begin, std::int64_t{hours} * secondsOfHour));
        needBounds(nx, ny, nz);
        for (std::int32_t i = 0; i < nz; ++i) source_.readLine("sigma level");
        for (std::int64_t i = 0; i < std::int64_t{nx} * ny; ++i) {
            GridFields cell = fields("grid cell");
            cell.whole("i");
            cell.whole("j");
        }
    }

    /// First and last cell and level; degrees that may follow are of no use here.
    void needBounds(std::int32_t nx, std::int32_t ny, std::int32_t nz) {
        GridFields range = fields("range of the extract");
        std::array<std::int32_t, 6> bounds{};  // i1 j1 i2 j2 k1 k2
        for (std::int32_t& bound : bounds) bound = range.wholeFrom(1, mostCellsOfSide, "range");
        if (bounds[2] - bounds[0] + 1 != nx || bounds[3] - bounds[1] + 1 != ny ||
            bounds[5] - bounds[4] + 1 != nz)
            range.fail("range", "does not agree with nx, ny and nz of the line before");
    }

    std::int32_t readVentos() {
        GridFields times = fields("period");
        readTime(times, r_.first);
        readTime(times, r_.last);
        r_.timeZone = times.text("time zone");
        if (!zoneOffset(r_.timeZone))
            times.fail("time zone", inQuotes(r_.timeZone) + " is no zone such as UTC-0500");
        const std::int32_t step = times.wholeFrom(1, 366 * 24 * secondsOfHour, "step");
        GridFields map = fields("projection");
        r_.PMAP = ucase(map.text("PMAP"));
        if (!hasMap(InputKind::Ventos, r_.PMAP)) map.fail("PMAP", inQuotes(r_.PMAP) + " is not known");
        r_.DATUM = map.text("DATUM");
        r_.UTMHEM = map.text("UTMHEM");
        r_.IUTMZN = map.skipUnused() ? 0 : map.whole("IUTMZN");
        if (r_.PMAP == "UTM" && (r_.IUTMZN < 1 || r_.IUTMZN > 60))
            map.fail("IUTMZN", "must be between 1 and 60");
        r_.FEAST = map.skipUnused() ? 0 : map.real("FEAST");
        r_.FNORTH = map.skipUnused() ? 0 : map.real("FNORTH");
        r_.RLAT0 = map.angle("RLAT0");
        r_.RLON0 = map.angle("RLON0");
        r_.XLAT1 = map.angle("XLAT1");
        r_.XLAT2 = map.angle("XLAT2");
        needPolarParallel(map);
        GridFields grid = fields("grid");
        grid.wholeFrom(1, mostCellsOfSide, "nx");
        grid.wholeFrom(1, mostCellsOfSide, "ny");
        const std::int32_t nz = grid.wholeFrom(1, mostLevelsOfGrid, "nz");
        grid.cornerAndCellSize();
        readFaces(nz + 1);
        return step;
    }

    /// Rising, on one line or on several.
    void readFaces(std::int32_t count) {
        std::optional<float> below;
        while (count > 0) {
            GridFields faces = fields("cell face heights");
            for (; !faces.atEnd(); --count) {
                if (count == 0) faces.fail("height", "is one more than nz + 1");
                const float height = faces.real("height");
                if (below && height <= *below) faces.fail("height", "does not rise");
                below = height;
            }
        }
    }

    void readTime(GridFields& fields, InfoViewResult::Time& time) {
        time.year = fullYear(fields.wholeFrom(0, 9999, "year"));
        time.month = fields.wholeFrom(1, 12, "month");
        time.day = fields.wholeFrom(1, 31, "day");
        time.hour = fields.wholeFrom(0, lastHour, "hour");
        time.seconds = fields.wholeFrom(0, secondsOfHour, "seconds");
        setTime(time, moment(fields, time));  // hour 24 and second 3600 belong to the next ones
    }

    static DateTime moment(const GridFields& fields, const InfoViewResult::Time& time) {
        try {
            return addSeconds(makeDate(time.year, time.month, time.day),
                              std::int64_t{time.hour} * secondsOfHour + time.seconds);
        } catch (const RunTimeError&) {
            fields.fail("date", "does not exist");
        }
    }

    static void setTime(InfoViewResult::Time& time, DateTime moment) {
        const CalendarDate date = dateOf(moment);
        const TimeOfDay clock = timeOf(moment);
        time = {date.year, date.month, date.day, clock.hour, clock.minute * 60 + clock.second};
    }

    HeaderSource& source_;
    InfoViewResult& r_;
};

}  // namespace

std::int32_t readGridHeader(HeaderSource& source, InputKind kind, InfoViewResult& result) {
    return source.placing([&] { return GridHeader(source, result).read(kind); });
}

void readGridFileHeader(const std::string& path, InputKind kind, InfoViewResult& result) {
    try {
        HeaderSource source(path);
        readGridHeader(source, kind, result);
    } catch (const HeaderError& error) {
        result = InfoViewResult();
        result.errorFlag = 1;
        result.errorText = messageOf(error);
    }
}

}  // namespace zg
