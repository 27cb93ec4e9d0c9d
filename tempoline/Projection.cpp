#include "tempoline/Projection.h"

#include <proj.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "base/Files.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "formats/Datums.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t mostKept = 64;  // number of transformations
constexpr double sevenDigits = 1e-6;
constexpr double smallAngle = 1e-4;  // degrees: the uncertainty of seven digits, about 10 m
constexpr double poleWidth = 1e-7;   // degrees: about a centimetre

struct Definition {
    std::string_view name;
    const char* text;
};

// Datums that are more than a shift. For spheres latitude and longitude are unchanged, because the models
// that use them do the same.
constexpr std::array<Definition, 4> ownDefinitions = {
    {{"WGS-84", "+datum=WGS84"},
     {"WGS-72", "+ellps=WGS72 +towgs84=0,0,4.5,0,0,0.554,0.2263"},
     {"NWS-84", "+R=6370000 +nadgrids=@null"},
     {"ESR-S", "+R=6371000 +nadgrids=@null"}}};

// By their names in the table. Axis and flattening are given if PROJ has no name for exactly this ellipsoid.
constexpr std::array<Definition, 21> ellipsoids = {{{"Airy 1830", "+ellps=airy"},
                                                    {"Australian National", "+ellps=aust_SA"},
                                                    {"Bessel 1841", "+ellps=bessel"},
                                                    {"Bessel 1841 (Namibia)", "+ellps=bess_nam"},
                                                    {"Clarke 1866", "+ellps=clrk66"},
                                                    {"Clarke 1880", "+a=6378249.145 +rf=293.465"},
                                                    {"Everest 1830", "+ellps=evrst30"},
                                                    {"Everest 1948", "+ellps=evrst48"},
                                                    {"Everest 1956", "+ellps=evrst56"},
                                                    {"Everest (Pakistan)", "+a=6377309.613 +rf=300.8017"},
                                                    {"Everest (Sabah, Sarawak)", "+ellps=evrstSS"},
                                                    {"GRS 80", "+ellps=GRS80"},
                                                    {"Helmert 1906", "+ellps=helmert"},
                                                    {"Hough 1960", "+ellps=hough"},
                                                    {"Indonesian 1974", "+a=6378160 +rf=298.247"},
                                                    {"International 1924", "+ellps=intl"},
                                                    {"Krassovsky 1940", "+ellps=krass"},
                                                    {"Modified Airy", "+ellps=mod_airy"},
                                                    {"Modified Fischer 1960", "+ellps=fschr60m"},
                                                    {"South American 1969", "+ellps=aust_SA"},
                                                    {"WGS 84", "+ellps=WGS84"}}};

// Datums whose results must not change: PROJ's Clarke 1880 has the flattening 1/293.4663, the table's
// 1/293.465, which moves a pole by 0.1 m.
constexpr std::array<std::string_view, 3> ofOtherClarke = {"ADI-M", "ARF-M", "CAP"};

std::string ellipsoidDefinition(const DatumRegion& row) {
    if (std::find(ofOtherClarke.begin(), ofOtherClarke.end(), row.code) != ofOtherClarke.end())
        return "+ellps=clrk80";
    constexpr std::string_view mark = " - ";
    const std::size_t at = row.ellipsoid.rfind(mark);
    const std::string name = at == std::string::npos ? row.ellipsoid : row.ellipsoid.substr(at + mark.size());
    for (const Definition& ellipsoid : ellipsoids)
        if (name == ellipsoid.name) return ellipsoid.text;
    return {};
}

std::optional<std::string> shiftDefinition(const DatumRegion& row) {
    const std::string ellipsoid = ellipsoidDefinition(row);
    if (!row.shift || ellipsoid.empty()) return {};
    const auto& [x, y, z] = *row.shift;
    return ellipsoid + " +towgs84=" + std::to_string(x) + "," + std::to_string(y) + "," + std::to_string(z);
}

struct ContextCloser {
    void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
};
struct TransformCloser {
    void operator()(PJ* transform) const { proj_destroy(transform); }
};
using Transform = std::unique_ptr<PJ, TransformCloser>;

Failure projectionFailure(const MapSetting& map, const std::string& text) {
    return {ExitStatus::Failed, "projection " + map.projection + ", datum " + map.datum + ": " + text};
}

std::string parameter(const char* name, double value) {
    return std::string(" +") + name + "=" + fixedText(value, 9);
}

std::string origin(const MapSetting& map) {
    return parameter("lat_0", map.latitude0) + parameter("lon_0", map.longitude0);
}

std::string falseOrigin(const MapSetting& map) {
    return parameter("x_0", 1000 * map.falseEasting) + parameter("y_0", 1000 * map.falseNorthing);
}

/// The projection plane of a polar map touches or cuts the earth at a parallel in the hemisphere of its pole.
double poleOf(const MapSetting& map) {
    const double side = map.latitude1 != 0 ? map.latitude1 : map.latitude0;
    return side < 0 ? -90 : 90;
}

bool isSphere(const std::string& datum) { return datumDefinition(datum).value_or("").rfind("+R=", 0) == 0; }

/// The equivalent of PROJ's utm, which accepts ellipsoids only, for a sphere.
std::string zoneOnSphere(const MapSetting& map) {
    return "+proj=tmerc +lat_0=0 +k=0.9996 +x_0=500000" + parameter("lon_0", 6 * map.utmZone - 183) +
           parameter("y_0", map.southern ? 1e7 : 0);
}

std::string projectionDefinition(const MapSetting& map) {
    const std::string& code = map.projection;
    if (code == "LL") return "+proj=longlat";
    if (code == "UTM" && isSphere(map.datum)) return zoneOnSphere(map);
    if (code == "UTM")
        return "+proj=utm +zone=" + std::to_string(map.utmZone) + (map.southern ? " +south" : "");
    if (code == "TTM") return "+proj=tmerc +k=1" + origin(map) + falseOrigin(map);
    if (code == "LCC")
        return "+proj=lcc" + parameter("lat_1", map.latitude1) + parameter("lat_2", map.latitude2) +
               origin(map) + falseOrigin(map);
    if (code == "PS")
        return "+proj=stere" + parameter("lat_0", poleOf(map)) + parameter("lat_ts", map.latitude1) +
               parameter("lon_0", map.longitude0);
    if (code == "EM")
        return "+proj=merc" + parameter("lat_ts", map.latitude1) + parameter("lon_0", map.longitude0);
    if (code == "LAZA") return "+proj=laea" + origin(map) + falseOrigin(map);
    throw projectionFailure(map, "the projection is not known");
}

std::string definitionOf(const MapSetting& map) {
    const std::optional<std::string> datum = datumDefinition(map.datum);
    if (!datum) throw projectionFailure(map, unknownDatum(map.datum));
    std::string text = projectionDefinition(map) + " " + *datum + " +no_defs +type=crs";
    if (map.projection != "LL") text += " +units=km";
    return text;
}

/// The datum without its shift to WGS 84: the shape and size of the ellipsoid only.
std::string shapeOf(const std::string& datum) {
    const std::size_t shift = std::min(datum.find(" +towgs84="), datum.find(" +nadgrids="));
    return datum.substr(0, shift);
}

bool agree(double a, double b) { return std::abs(a - b) <= sevenDigits * std::max(std::abs(a), std::abs(b)); }

/// Whether two longitudes or two latitudes agree, disregarding full turns.
bool agreeInAngle(double a, double b) { return std::abs(std::remainder(a - b, 360)) <= smallAngle; }

/// A transformation with the context that it needs.
struct Operation {
    std::unique_ptr<PJ_CONTEXT, ContextCloser> context;
    Transform transform;
};

/// Creating one takes milliseconds, and the places of a run share only a few.
template <typename Maker>
PJ* keptOperation(const std::string& key, Maker make) {
    thread_local std::map<std::string, Operation> kept;
    const auto found = kept.find(key);
    if (found != kept.end()) return found->second.transform.get();
    Operation operation;
    operation.context.reset(proj_context_create());
    proj_log_level(operation.context.get(), PJ_LOG_NONE);
    // Where the system has no PROJ of its own, its database is beside the program.
    if (stateOfFile(inApplicationDirectory("proj.db"))) {
        const char* const place = applicationDirectory.c_str();
        proj_context_set_search_paths(operation.context.get(), 1, &place);
    }
    operation.transform = make(operation.context.get());
    if (kept.size() >= mostKept) kept.clear();
    return kept.emplace(key, std::move(operation)).first->second.transform.get();
}

MapPoint transformed(MapPoint point, const MapSetting& from, const MapSetting& to) {
    const std::string source = definitionOf(from);
    const std::string target = definitionOf(to);
    PJ* const transform = keptOperation(source + " to " + target, [&](PJ_CONTEXT* context) {
        const Transform raw(proj_create_crs_to_crs(context, source.c_str(), target.c_str(), nullptr));
        if (!raw)
            throw projectionFailure(
                from, "it makes no projection together with " + to.projection + ", " + to.datum);
        Transform normal(proj_normalize_for_visualization(context, raw.get()));
        if (!normal) throw projectionFailure(from, "it makes no projection");
        return normal;
    });
    proj_errno_reset(transform);
    const PJ_COORD result = proj_trans(transform, PJ_FWD, proj_coord(point.x, point.y, 0, 0));
    if (!std::isfinite(result.xy.x) || !std::isfinite(result.xy.y))
        throw projectionFailure(
            to, "the point " + fixedText(point.x, 4) + ", " + fixedText(point.y, 4) + " has no place in it");
    return {result.xy.x, result.xy.y};
}

/// Coordinates of a polar map count from its origin; PROJ's count from the pole.
MapPoint polarOrigin(const MapSetting& map) {
    if (map.projection != "PS" || std::abs(map.latitude0) == 90) return {};
    MapSetting degrees;
    degrees.projection = "LL";
    degrees.datum = map.datum;
    return transformed({map.longitude0, map.latitude0}, degrees, map);
}

}  // namespace

std::optional<std::string> datumDefinition(const std::string& code) {
    const std::string wanted = datumOfSpelling(ucase(trimmed(code)));
    for (const Definition& own : ownDefinitions)
        if (wanted == own.name) return own.text;
    for (const DatumRegion& row : builtInDatums().rows)
        if (wanted == row.code) return shiftDefinition(row);
    return {};
}

std::string unknownDatum(const std::string& code) {
    return "\"" + code.substr(0, 20) + "\" is no datum code that is known here";
}

bool isSameMap(const MapSetting& a, const MapSetting& b) {
    const std::string& code = a.projection;
    if (code != b.projection || datumDefinition(a.datum) != datumDefinition(b.datum)) return false;
    if (code == "LL") return true;
    if (code == "UTM") return a.utmZone == b.utmZone && a.southern == b.southern;
    if (!agreeInAngle(a.longitude0, b.longitude0)) return false;
    const bool sameFirst = agreeInAngle(a.latitude1, b.latitude1);
    if (code == "EM") return sameFirst;  // its coordinates count from the equator
    if (!agreeInAngle(a.latitude0, b.latitude0)) return false;
    if (code == "PS") return sameFirst;
    if (!agree(a.falseEasting, b.falseEasting) || !agree(a.falseNorthing, b.falseNorthing)) return false;
    return code != "LCC" || (sameFirst && agreeInAngle(a.latitude2, b.latitude2));
}

MapSetting completed(MapSetting asked, const MapSetting& data) {
    if (asked.projection == "EM" && data.projection == "EM" &&
        agreeInAngle(asked.longitude0, data.longitude0))
        asked.latitude1 = data.latitude1;
    return asked;
}

double convergenceAt(MapPoint point, const MapSetting& map) {
    if (map.projection == "LL") return 0;
    MapSetting degrees;
    degrees.projection = "LL";
    degrees.datum = map.datum;
    const MapPoint place = converted(point, map, degrees);
    if (std::abs(place.y) > 90 - poleWidth)
        throw projectionFailure(map, "the point " + fixedText(point.x, 4) + ", " + fixedText(point.y, 4) +
                                         " is a pole, where no direction is north");
    const std::string definition =
        projectionDefinition(map) + " " + shapeOf(datumDefinition(map.datum).value_or(""));
    PJ* const projection = keptOperation(definition, [&](PJ_CONTEXT* context) {
        Transform made(proj_create(context, definition.c_str()));
        if (!made) throw projectionFailure(map, "it makes no projection");
        return made;
    });
    proj_errno_reset(projection);
    const PJ_COORD where = proj_coord(proj_torad(place.x), proj_torad(place.y), 0, 0);
    const double angle = proj_factors(projection, where).meridian_convergence;
    if (proj_errno(projection) != 0 || !std::isfinite(angle))
        throw projectionFailure(map, "the point " + fixedText(point.x, 4) + ", " + fixedText(point.y, 4) +
                                         " has no direction to the north");
    return proj_todeg(angle);
}

MapPoint converted(MapPoint point, const MapSetting& from, const MapSetting& to) {
    const MapPoint fromOrigin = polarOrigin(from);
    const MapPoint toOrigin = polarOrigin(to);
    const MapPoint result = transformed({point.x + fromOrigin.x, point.y + fromOrigin.y}, from, to);
    return {result.x - toOrigin.x, result.y - toOrigin.y};
}

}  // namespace zg::tempoline
