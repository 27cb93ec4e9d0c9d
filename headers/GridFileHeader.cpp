#include "headers/GridFileHeader.h"

#include <algorithm>
#include <vector>

#include "base/Dates.h"
#include "base/Lines.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "formats/Kinds.h"
#include "formats/Times.h"

namespace zg {

namespace {

constexpr std::int32_t largestGrid = 100'000;  // cells per side; a larger number is invalid
// The models behind 3D.DAT use a sphere of 6370 km.
constexpr const char* sphereOfModels = "NWS-84";

/// The error in the file, in the words for the user.
struct Fault {
    std::string text;
};

/// One line's fields, separated by blanks.
class Fields {
 public:
    Fields(std::string_view line, std::size_t number, std::string what)
        : number_(number), what_(std::move(what)) {
        for (std::size_t at = 0; (at = line.find_first_not_of(" \t", at)) != std::string_view::npos;) {
            const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
            fields_.emplace_back(line.substr(at, end - at));
            at = end;
        }
    }

    /// The next field as a text.
    std::string text(const char* name) {
        if (next_ >= fields_.size()) fail(name, "is missing");
        return fields_[next_++];
    }
    std::int32_t whole(const char* name) {
        return number<std::int32_t>(name, static_cast<std::int32_t (*)(std::string_view)>(toInt32));
    }
    float real(const char* name) {
        return number<float>(name, static_cast<float (*)(std::string_view)>(toSingle));
    }
    /// "NONE" means that a value is not used.
    bool skipUnused() {
        if (next_ >= fields_.size() || ucase(fields_[next_]) != "NONE") return false;
        ++next_;
        return true;
    }
    /// Degrees, signed or with the letter of the hemisphere.
    float angle(const char* name) {
        if (next_ >= fields_.size()) fail(name, "is missing");
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
        throw Fault{"line " + std::to_string(number_) + " (" + what_ + "): " + name + " " + problem};
    }

 private:
    template <typename Number>
    Number number(const char* name, Number (*convert)(std::string_view)) {
        const std::string field = text(name);
        try {
            return convert(field);
        } catch (const RunTimeError&) {
            fail(name, "\"" + leftN(field, longestQuote) + "\" is not a number");
        }
    }

    static constexpr std::size_t longestQuote = 20;
    std::size_t number_;
    std::string what_;
    std::vector<std::string> fields_;
    std::size_t next_ = 0;
};

class Header {
 public:
    Header(const std::string& path, InfoViewResult& result) : lines_(path), r_(result) {}

    void read(GridKind kind) {
        readKind(formatOf(kind == GridKind::M3d ? InputKind::M3d : InputKind::Ventos));
        const std::int32_t comments = fields("number of comment lines").wholeFrom(0, largestGrid, "number");
        for (std::int32_t i = 0; i < comments; ++i) line("comment");
        if (kind == GridKind::M3d)
            readM3d();
        else
            readVentos();
    }

 private:
    std::string_view line(const char* what) {
        if (lines_.atEnd())
            throw Fault{"line " + std::to_string(lines_.lineNumber() + 1) + " (" + what +
                        "): the file ends here"};
        return lines_.readLine();
    }
    Fields fields(const char* what) {
        const std::string_view text = line(what);
        return {text, lines_.lineNumber(), what};
    }

    /// Examines only the first bytes: another kind of file may have no line end at all.
    void readKind(const Format& format) {
        const std::string kind(format.firstWord);
        if (!lines_.ahead().starts_with(kind))
            throw Fault{"line 1 (file type): the file does not begin with " + kind};
        Fields first = fields("file type");
        if (const std::string name = first.text("name"); name != kind)
            throw Fault{"line 1 (file type): the file does not begin with " + kind};
        if (const std::string found = first.text("version"); !format.hasVersion(found))
            throw Fault{"line 1 (file type): version " + leftN(found, 20) + " is not known"};
    }

    void readM3d() {
        Fields flags = fields("output flags");
        for (int i = 0; i < 6; ++i) flags.wholeFrom(0, 1, "flag");
        Fields map = fields("projection");
        r_.PMAP = map.text("projection");
        if (r_.PMAP != "LCC" && r_.PMAP != "PS" && r_.PMAP != "EM" && r_.PMAP != "LL")
            map.fail("projection", "\"" + leftN(r_.PMAP, 20) + "\" is not known");
        r_.RLAT0 = map.angle("RLAT0");
        r_.RLON0 = map.angle("RLON0");
        r_.XLAT1 = map.angle("XLAT1");
        r_.XLAT2 = map.angle("XLAT2");
        needPolarParallel(map);
        map.skip(3, "corner or cell size");
        for (const char* name : {"nx", "ny", "nz"}) map.wholeFrom(1, largestGrid, name);
        line("model options");
        r_.DATUM = sphereOfModels;
        r_.timeZone = "UTC+0000";
        readExtract();
    }

    void needPolarParallel(const Fields& map) const {
        if (r_.PMAP == "PS" && r_.XLAT1 == 0) map.fail("XLAT1", "is missing: a polar map is true at it");
    }

    void readExtract() {
        Fields extract = fields("extracted period and grid");
        const std::int32_t stamp = extract.wholeFrom(100'010'100, 2'147'483'647, "first time");
        r_.first = {stamp / 1'000'000, stamp / 10'000 % 100, stamp / 100 % 100, stamp % 100, 0};
        const std::int32_t hours = extract.wholeFrom(1, 10'000'000, "number of hours");
        const std::int32_t nx = extract.wholeFrom(1, largestGrid, "nx");
        const std::int32_t ny = extract.wholeFrom(1, largestGrid, "ny");
        const std::int32_t nz = extract.wholeFrom(1, largestGrid, "nz");
        const DateTime begin = moment(extract, r_.first);
        // Each record covers the hour that begins at its time.
        setTime(r_.last, addSeconds(begin, std::int64_t{hours} * secondsOfHour));
        fields("range of the extract").skip(10, "range");
        for (std::int32_t i = 0; i < nz; ++i) fields("sigma level").real("sigma");
        for (std::int64_t i = 0; i < std::int64_t{nx} * ny; ++i) fields("grid cell").skip(4, "cell");
    }

    void readVentos() {
        Fields times = fields("period");
        readTime(times, r_.first);
        readTime(times, r_.last);
        r_.timeZone = times.text("time zone");
        times.wholeFrom(1, 366 * 24 * secondsOfHour, "step");
        Fields map = fields("projection");
        r_.PMAP = map.text("PMAP");
        r_.DATUM = map.text("DATUM");
        r_.UTMHEM = map.text("UTMHEM");
        r_.IUTMZN = map.skipUnused() ? 0 : map.whole("IUTMZN");
        r_.FEAST = map.skipUnused() ? 0 : map.real("FEAST");
        r_.FNORTH = map.skipUnused() ? 0 : map.real("FNORTH");
        r_.RLAT0 = map.angle("RLAT0");
        r_.RLON0 = map.angle("RLON0");
        r_.XLAT1 = map.angle("XLAT1");
        r_.XLAT2 = map.angle("XLAT2");
        needPolarParallel(map);
        Fields grid = fields("grid");
        grid.wholeFrom(1, largestGrid, "nx");
        grid.wholeFrom(1, largestGrid, "ny");
        const std::int32_t nz = grid.wholeFrom(1, largestGrid, "nz");
        grid.skip(3, "corner or cell size");
        fields("cell face heights").skip(nz + 1, "height");
    }

    void readTime(Fields& fields, InfoViewResult::Time& time) {
        time.year = fields.wholeFrom(100, 9999, "year");
        time.month = fields.wholeFrom(1, 12, "month");
        time.day = fields.wholeFrom(1, 31, "day");
        time.hour = fields.wholeFrom(0, 24, "hour");
        time.seconds = fields.wholeFrom(0, secondsOfHour, "seconds");
        setTime(time, moment(fields, time));  // hour 24 and second 3600 belong to the next ones
    }

    static DateTime moment(const Fields& fields, const InfoViewResult::Time& time) {
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

    LineReader lines_;
    InfoViewResult& r_;
};

}  // namespace

void readGridFileHeader(const std::string& path, GridKind kind, InfoViewResult& result) {
    const auto fail = [&result](const std::string& text) {
        result = InfoViewResult();
        result.errorFlag = 1;
        result.errorText = text;
    };
    try {
        Header(path, result).read(kind);
    } catch (const Fault& fault) {
        fail(fault.text);
    } catch (const RunTimeError& error) {
        fail(error.description);
    }
}

}  // namespace zg
