#include "tempoline/Projection.h"

#include <proj.h>

#include <cmath>
#include <memory>
#include <vector>

#include "base/Text.h"
#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

struct DatumRow {
    const char* code;
    const char* definition;
};

// Mean shifts to WGS 84 as the national imagery and mapping agencies publish them. Spheres keep latitude and
// longitude as they are, since that is how the models that use them mean it.
constexpr DatumRow datumRows[] = {
    {"WGS-84", "+datum=WGS84"},
    {"WGS-72", "+ellps=WGS72 +towgs84=0,0,4.5,0,0,0.554,0.2263"},
    {"NAR-A", "+ellps=GRS80 +towgs84=0,0,0"},
    {"NAR-B", "+ellps=GRS80 +towgs84=0,0,0"},
    {"NAR-C", "+ellps=GRS80 +towgs84=0,0,0"},
    {"NAR-D", "+ellps=GRS80 +towgs84=0,0,0"},
    {"NAS-A", "+ellps=clrk66 +towgs84=-9,161,179"},
    {"NAS-B", "+ellps=clrk66 +towgs84=-8,159,175"},
    {"NAS-C", "+ellps=clrk66 +towgs84=-8,160,176"},
    {"NAS-D", "+ellps=clrk66 +towgs84=-5,135,172"},
    {"NAS-E", "+ellps=clrk66 +towgs84=-10,158,187"},
    {"NWS-84", "+R=6370000 +nadgrids=@null"},
    {"ESR-S", "+R=6371000 +nadgrids=@null"},
    {"EUR-M", "+ellps=intl +towgs84=-87,-98,-121"},
    {"EUS", "+ellps=intl +towgs84=-86,-98,-119"},
    {"OGB-M", "+ellps=airy +towgs84=375,-111,431"},
    {"IRL", "+ellps=mod_airy +towgs84=506,-122,611"},
    {"TOY-M", "+ellps=bessel +towgs84=-148,507,685"},
    {"AUA", "+ellps=aust_SA +towgs84=-133,-48,148"},
    {"AUG", "+ellps=aust_SA +towgs84=-134,-48,149"},
    {"GEO", "+ellps=intl +towgs84=84,-22,209"},
    {"SAN-M", "+ellps=aust_SA +towgs84=-57,1,-41"},
    {"PRP-M", "+ellps=intl +towgs84=-288,175,-376"},
    {"ADI-M", "+ellps=clrk80 +towgs84=-166,-15,204"},
    {"ARF-M", "+ellps=clrk80 +towgs84=-143,-90,-294"},
    {"CAP", "+ellps=clrk80 +towgs84=-136,-108,-292"},
};

struct DatumAlias {
    const char* spelling;
    const char* code;
};
constexpr DatumAlias datumAliases[] = {{"NAD27", "NAS-C"},  {"NAD-27", "NAS-C"},  {"NAD 27", "NAS-C"},
                                       {"NAD83", "NAR-C"},  {"NAD-83", "NAR-C"},  {"NAD 83", "NAR-C"},
                                       {"WGS84", "WGS-84"}, {"WGS 84", "WGS-84"}, {"WGS72", "WGS-72"},
                                       {"WGS 72", "WGS-72"}};

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

/// The projection plane of a polar map touches or cuts the earth at a parallel on the side of its pole.
double poleOf(const MapSetting& map) {
    const double side = map.latitude1 != 0 ? map.latitude1 : map.latitude0;
    return side < 0 ? -90 : 90;
}

std::string projectionDefinition(const MapSetting& map) {
    const std::string& code = map.projection;
    if (code == "LL") return "+proj=longlat";
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

MapPoint transformed(MapPoint point, const MapSetting& from, const MapSetting& to) {
    const std::unique_ptr<PJ_CONTEXT, ContextCloser> context(proj_context_create());
    proj_log_level(context.get(), PJ_LOG_NONE);
    const Transform raw(
        proj_create_crs_to_crs(context.get(), definitionOf(from).c_str(), definitionOf(to).c_str(), nullptr));
    if (!raw)
        throw projectionFailure(from,
                                "it makes no projection together with " + to.projection + ", " + to.datum);
    const Transform transform(proj_normalize_for_visualization(context.get(), raw.get()));
    if (!transform) throw projectionFailure(from, "it makes no projection");
    const PJ_COORD result = proj_trans(transform.get(), PJ_FWD, proj_coord(point.x, point.y, 0, 0));
    if (!std::isfinite(result.xy.x) || !std::isfinite(result.xy.y))
        throw projectionFailure(
            to, "the point " + fixedText(point.x, 4) + ", " + fixedText(point.y, 4) + " has no place in it");
    return {result.xy.x, result.xy.y};
}

/// A polar map counts from the point of its origin, and PROJ counts from the pole.
MapPoint polarOrigin(const MapSetting& map) {
    if (map.projection != "PS" || std::abs(map.latitude0) == 90) return {};
    MapSetting degrees;
    degrees.projection = "LL";
    degrees.datum = map.datum;
    return transformed({map.longitude0, map.latitude0}, degrees, map);
}

}  // namespace

std::optional<std::string> datumDefinition(const std::string& code) {
    std::string wanted = ucase(trimmed(code));
    for (const DatumAlias& alias : datumAliases) {
        if (wanted == alias.spelling) wanted = alias.code;
    }
    for (const DatumRow& row : datumRows) {
        if (wanted == row.code) return row.definition;
    }
    return {};
}

std::string unknownDatum(const std::string& code) {
    return "\"" + code.substr(0, 20) + "\" is no datum code that is known here";
}

MapPoint converted(MapPoint point, const MapSetting& from, const MapSetting& to) {
    const MapPoint fromOrigin = polarOrigin(from);
    const MapPoint toOrigin = polarOrigin(to);
    const MapPoint result = transformed({point.x + fromOrigin.x, point.y + fromOrigin.y}, from, to);
    return {result.x - toOrigin.x, result.y - toOrigin.y};
}

}  // namespace zg::tempoline
