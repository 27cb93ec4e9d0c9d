#include "formats/Datums.h"

#include <charconv>

#include "DatumsText.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

namespace {

constexpr const char* tableName = "datums.csv";
constexpr std::size_t textFields = 4;
constexpr std::size_t allFields = 7;
constexpr std::array<std::size_t, textFields> widths = {20, 52, 180, 8};

[[noreturn]] void failLine(std::size_t number, const std::string& problem) {
    RunTimeError error(static_cast<int>(ErrorNumber::TypeMismatch),
                       std::string(tableName) + ", line " + std::to_string(number) + ": " + problem);
    error.where = std::to_string(number) + ": " + problem;
    throw error;
}

/// The fields between commas; double quotes protect a comma.
std::vector<std::string> fieldsOf(std::string_view line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (const char c : line) {
        if (c == '"')
            quoted = !quoted;
        else if (c == ',' && !quoted)
            fields.emplace_back();
        else
            fields.back() += c;
    }
    for (std::string& field : fields) field = trim(field);
    return fields;
}

std::array<int, 3> shiftOf(const std::vector<std::string>& fields, std::size_t number) {
    std::array<int, 3> shift = {};
    for (std::size_t i = 0; i < shift.size(); ++i) {
        const std::string& field = fields[textFields + i];
        const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), shift.at(i));
        if (error != std::errc() || end != field.data() + field.size())
            failLine(number, "field " + std::to_string(textFields + i + 1) + " is no whole number of metres");
    }
    return shift;
}

DatumRegion rowOf(const std::vector<std::string>& fields, std::size_t number) {
    if (fields.size() != textFields && fields.size() != allFields)
        failLine(number, "continent, ellipsoid, region and code are wanted");
    for (std::size_t i = 0; i < textFields; ++i)
        if (fields[i].empty() || fields[i].size() > widths.at(i))
            failLine(number, "field " + std::to_string(i + 1) + " is empty or too long");
    DatumRegion row{fields[0], fields[1], fields[2], fields[3]};
    if (fields.size() == allFields && !(fields[4].empty() && fields[5].empty() && fields[6].empty()))
        row.shift = shiftOf(fields, number);
    return row;
}

}  // namespace

DatumFile readDatums(LineReader& lines) {
    DatumFile file;
    const std::vector<std::string> heading = fieldsOf(lines.readLine());
    if (heading.size() != 3 || heading[0] != "DATUMS.CSV" || heading[1] != "V1.0")
        failLine(1, "DATUMS.CSV,V1.0 and a date are wanted");
    file.stamp = heading[2];
    lines.readLine();  // the column names
    while (!lines.atEnd()) {
        const std::string line(lines.readLine());
        if (!trim(line).empty()) file.rows.push_back(rowOf(fieldsOf(line), lines.lineNumber()));
    }
    return file;
}

const DatumFile& builtInDatums() {
    static const DatumFile file = [] {
        LineReader lines = LineReader::ofText(datumsText);
        return readDatums(lines);
    }();
    return file;
}

std::string datumOfSpelling(const std::string& typed) {
    struct Spelling {
        const char* text;
        const char* code;
    };
    constexpr std::array<Spelling, 10> spellings = {{{"NAD27", "NAS-C"},
                                                     {"NAD-27", "NAS-C"},
                                                     {"NAD 27", "NAS-C"},
                                                     {"WGS84", "WGS-84"},
                                                     {"WGS 84", "WGS-84"},
                                                     {"WGS72", "WGS-72"},
                                                     {"WGS 72", "WGS-72"},
                                                     {"NAD83", "NAR-C"},
                                                     {"NAD 83", "NAR-C"},
                                                     {"NAD-83", "NAR-C"}}};
    for (const Spelling& spelling : spellings)
        if (typed == spelling.text) return spelling.code;
    return typed;
}

}  // namespace zg
