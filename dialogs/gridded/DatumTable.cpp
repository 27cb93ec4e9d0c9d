#include "dialogs/gridded/DatumTable.h"

#include <algorithm>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "formats/Datums.h"

namespace zg {

ModDatums modDatums{readDatumRecord, {}};

namespace {

constexpr const char* tableName = "datums.csv";
constexpr std::size_t regionWidth = 60;

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
    if (record == 1) {
        LineReader lines(inApplicationDirectory(tableName));
        file = readDatums(lines);
    }
    if (record < 1 || static_cast<std::size_t>(record) > file.rows.size())
        raise(ErrorNumber::SubscriptOutOfRange);
    const DatumRegion& row = file.rows[static_cast<std::size_t>(record - 1)];
    result.DatumCount = static_cast<std::int32_t>(file.rows.size());
    result.status = file.stamp == builtInDatums().stamp ? 0 : 1;
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

std::string DatumAlias(const std::string& typed) { return datumOfSpelling(typed); }

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
