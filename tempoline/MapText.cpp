#include "tempoline/MapText.h"

#include <cmath>

#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

std::string angleEntry(const char* name, double value, const char* positive, const char* negative) {
    return std::string(", ") + name + " = " + shortText(std::abs(value)) + (value < 0 ? negative : positive);
}

std::string latitudeEntry(const char* name, double value) { return angleEntry(name, value, "N", "S"); }

std::string kilometresEntry(const char* name, double value) {
    return std::string(", ") + name + " = " + shortText(value) + " km";
}

}  // namespace

std::string mapText(const MapSetting& map) {
    const std::string& code = map.projection;
    std::string text = code;
    if (code == "UTM")
        text += ", IUTMZN = " + std::to_string(map.utmZone) + ", UTMHEM = " + (map.southern ? "S" : "N");
    const bool hasOrigin = code == "TTM" || code == "LCC" || code == "PS" || code == "EM" || code == "LAZA";
    if (hasOrigin && code != "EM") text += latitudeEntry("RLAT0", map.latitude0);
    if (hasOrigin) text += angleEntry("RLON0", map.longitude0, "E", "W");
    if (code == "LCC" || code == "PS" || code == "EM") text += latitudeEntry("XLAT1", map.latitude1);
    if (code == "LCC") text += latitudeEntry("XLAT2", map.latitude2);
    if (code == "TTM" || code == "LCC" || code == "LAZA")
        text += kilometresEntry("FEAST", map.falseEasting) + kilometresEntry("FNORTH", map.falseNorthing);
    return code == "NONE" ? text : text + ", DATUM = " + map.datum;
}

const char* unitOf(const MapSetting& map) { return map.projection == "LL" ? "degrees" : "km"; }

}  // namespace zg::tempoline
