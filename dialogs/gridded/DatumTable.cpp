#include "dialogs/gridded/DatumTable.h"

#include <algorithm>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"

namespace zg {

ModDatums modDatums{readDatumRecord, {}};

namespace {

// Changed together with the first line of data/datums.csv: a table of another date does not belong to this
// program.
constexpr const char* compiledStamp = "2026-11-20";
constexpr const char* tableName = "datums.csv";
constexpr std::size_t continentWidth = 20;
constexpr std::size_t ellipsoidWidth = 52;
constexpr std::size_t regionWidth = 60;
constexpr std::size_t codeWidth = 8;

struct DatumFile {
    std::string stamp;
    std::vector<DatumRegion> rows;
};

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

DatumRegion rowOf(const std::vector<std::string>& fields, std::size_t number) {
    if (fields.size() != 4) failLine(number, "continent, ellipsoid, region and code are wanted");
    constexpr std::array<std::size_t, 4> widths = {continentWidth, ellipsoidWidth, 3 * regionWidth,
                                                   codeWidth};
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].empty() || fields[i].size() > widths[i])
            failLine(number, "field " + std::to_string(i + 1) + " is empty or too long");
    return {fields[0], fields[1], fields[2], fields[3]};
}

DatumFile readDatumFile() {
    DatumFile file;
    LineReader lines(inApplicationDirectory(tableName));
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

/// Pieces that give the text again when they are trimmed and joined: never cut next to a blank.
std::array<std::string, 3> piecesOf(std::string_view region) {
    std::array<std::string, 3> pieces;
    for (std::string& piece : pieces) {
        std::size_t cut = std::min(regionWidth, region.size());
        while (cut > 1 && cut < region.size() && (region[cut - 1] == ' ' || region[cut] == ' ')) --cut;
        piece = region.substr(0, cut);
        region.remove_prefix(cut);
    }
    return pieces;
}

void addOnce(std::vector<std::string>& list, const std::string& text) {
    if (std::find(list.begin(), list.end(), text) == list.end()) list.push_back(text);
}

}  // namespace

void readDatumRecord(std::int32_t record, InitResult& result) {
    static DatumFile file;
    if (record == 1) file = readDatumFile();
    if (record < 1 || static_cast<std::size_t>(record) > file.rows.size())
        raise(ErrorNumber::SubscriptOutOfRange);
    const DatumRegion& row = file.rows[static_cast<std::size_t>(record - 1)];
    result.DatumCount = static_cast<std::int32_t>(file.rows.size());
    result.status = file.stamp == compiledStamp ? 0 : 1;
    result.continent = row.continent;
    result.ellipsoid = row.ellipsoid;
    result.code = row.code;
    result.region = piecesOf(row.region);
    result.dateStamp = file.stamp;
}

bool ReadDatumTable() {
    ModDatums& m = modDatums;
    m.datums.clear();
    InitResult first;
    m.init(1, first);
    std::vector<DatumRegion> table;
    for (std::int32_t record = 1; record <= first.DatumCount; ++record) {
        InitResult r;
        m.init(record, r);
        if (r.status != 0) return false;
        table.push_back({trim(r.continent), trim(r.ellipsoid),
                         trim(r.region[0]) + trim(r.region[1]) + trim(r.region[2]), trim(r.code)});
    }
    m.datums = std::move(table);
    return true;
}

std::string DatumAlias(const std::string& typed) {
    struct Alias {
        const char* spelling;
        const char* code;
    };
    constexpr std::array<Alias, 10> aliases = {{{"NAD27", "NAS-C"},
                                                {"NAD-27", "NAS-C"},
                                                {"NAD 27", "NAS-C"},
                                                {"WGS84", "WGS-84"},
                                                {"WGS 84", "WGS-84"},
                                                {"WGS72", "WGS-72"},
                                                {"WGS 72", "WGS-72"},
                                                {"NAD83", "NAR-C"},
                                                {"NAD 83", "NAR-C"},
                                                {"NAD-83", "NAR-C"}}};
    for (const Alias& alias : aliases)
        if (typed == alias.spelling) return alias.code;
    return typed;
}

const DatumRegion* DatumLookUp(const std::string& code) {
    for (const DatumRegion& row : modDatums.datums)
        if (row.code == code) return &row;
    return nullptr;
}

std::vector<std::string> continents() {
    std::vector<std::string> list;
    for (const DatumRegion& row : modDatums.datums)
        if (list.empty() || list.back() != row.continent) list.push_back(row.continent);
    return list;
}

std::vector<std::string> ellipsoidsOf(const std::string& continent) {
    std::vector<std::string> list;
    for (const DatumRegion& row : modDatums.datums)
        if (row.continent == continent) addOnce(list, row.ellipsoid);
    return list;
}

std::vector<std::string> regionsOf(const std::string& ellipsoid) {
    std::vector<std::string> list;
    for (const DatumRegion& row : modDatums.datums)
        if (row.ellipsoid == ellipsoid) list.push_back(row.region);
    return list;
}

std::string codeOf(const std::string& continent, const std::string& ellipsoid, const std::string& region) {
    std::string found;
    for (const DatumRegion& row : modDatums.datums) {
        if (row.ellipsoid != ellipsoid || row.region != region) continue;
        if (row.continent == continent) return row.code;
        if (found.empty()) found = row.code;
    }
    return found;
}

}  // namespace zg
