#include "tempoline/MapText.h"

#include <gtest/gtest.h>

namespace zg::tempoline {

namespace {

MapSetting mapOf(const std::string& projection) {
    MapSetting map;
    map.projection = projection;
    map.datum = "NWS-84";
    map.latitude0 = 40.5;
    map.longitude0 = -97;
    map.latitude1 = -33;
    map.latitude2 = 45;
    map.falseEasting = 12.5;
    map.falseNorthing = -20;
    map.utmZone = 18;
    map.southern = true;
    return map;
}

}  // namespace

TEST(MapText, TellsWhatCountsForItsProjection) {
    const std::string lengths = ", FEAST = 12.5 km, FNORTH = -20 km";
    const std::string datum = ", DATUM = NWS-84";
    EXPECT_EQ(mapText(mapOf("LL")), "LL" + datum);
    EXPECT_EQ(mapText(mapOf("UTM")), "UTM, IUTMZN = 18, UTMHEM = S" + datum);
    EXPECT_EQ(mapText(mapOf("LCC")),
              "LCC, RLAT0 = 40.5N, RLON0 = 97W, XLAT1 = 33S, XLAT2 = 45N" + lengths + datum);
    EXPECT_EQ(mapText(mapOf("TTM")), "TTM, RLAT0 = 40.5N, RLON0 = 97W" + lengths + datum);
    EXPECT_EQ(mapText(mapOf("LAZA")), "LAZA, RLAT0 = 40.5N, RLON0 = 97W" + lengths + datum);
    EXPECT_EQ(mapText(mapOf("PS")), "PS, RLAT0 = 40.5N, RLON0 = 97W, XLAT1 = 33S" + datum);
    EXPECT_EQ(mapText(mapOf("EM")), "EM, RLON0 = 97W, XLAT1 = 33S" + datum);
    EXPECT_EQ(mapText(mapOf("NONE")), "NONE");
}

TEST(MapText, NorthernZonesAndEasternMeridiansHaveTheirLetters) {
    MapSetting map = mapOf("UTM");
    map.southern = false;
    EXPECT_EQ(mapText(map), "UTM, IUTMZN = 18, UTMHEM = N, DATUM = NWS-84");
    map.projection = "EM";
    map.longitude0 = 0;
    map.latitude1 = 0;
    EXPECT_EQ(mapText(map), "EM, RLON0 = 0E, XLAT1 = 0N, DATUM = NWS-84");
}

TEST(MapText, PlacesAreInKilometresOrDegrees) {
    EXPECT_STREQ(unitOf(mapOf("LL")), "degrees");
    EXPECT_STREQ(unitOf(mapOf("LCC")), "km");
}

}  // namespace zg::tempoline
