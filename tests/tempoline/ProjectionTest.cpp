#include "tempoline/Projection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double metre = 0.001;  // km

MapSetting degrees(const std::string& datum) {
    MapSetting map;
    map.projection = "LL";
    map.datum = datum;
    return map;
}

MapSetting plane(const std::string& code, const std::string& datum, double latitude0, double longitude0) {
    MapSetting map;
    map.projection = code;
    map.datum = datum;
    map.latitude0 = latitude0;
    map.longitude0 = longitude0;
    return map;
}

}  // namespace

TEST(Projection, TheCentralMeridianOfAZone) {
    MapSetting utm = plane("UTM", "WGS-84", 0, 0);
    utm.utmZone = 18;
    const MapPoint point = converted({-75, 0}, degrees("WGS-84"), utm);
    EXPECT_NEAR(point.x, 500, metre);
    EXPECT_NEAR(point.y, 0, metre);
    utm.southern = true;
    EXPECT_NEAR(converted({-75, 0}, degrees("WGS-84"), utm).y, 10000, metre);
    const MapPoint back = converted({512.345, 5678.9}, utm, degrees("WGS-84"));
    const MapPoint again = converted(back, degrees("WGS-84"), utm);
    EXPECT_NEAR(again.x, 512.345, metre);
    EXPECT_NEAR(again.y, 5678.9, metre);
}

/// Against the closed formula of the sphere.
TEST(Projection, ZonesOnASphere) {
    for (const auto& [datum, radius] : {std::pair("NWS-84", 6370.0), std::pair("ESR-S", 6371.0)}) {
        MapSetting utm = plane("UTM", datum, 0, 0);
        utm.utmZone = 18;
        const double b = std::cos(40 * degree) * std::sin(2 * degree);
        const double y = 0.9996 * radius * std::atan(std::tan(40 * degree) / std::cos(2 * degree));
        const MapPoint north = converted({-73, 40}, degrees(datum), utm);
        EXPECT_NEAR(north.x, 500 + 0.9996 * radius * std::atanh(b), metre);
        EXPECT_NEAR(north.y, y, metre);
        utm.southern = true;
        const MapPoint south = converted({-73, -40}, degrees(datum), utm);
        EXPECT_NEAR(south.x, north.x, metre);
        EXPECT_NEAR(south.y, 10000 - y, metre);
        const MapPoint back = converted(south, utm, degrees(datum));
        EXPECT_NEAR(back.x, -73, 1e-8);
        EXPECT_NEAR(back.y, -40, 1e-8);
    }
}

/// Against the closed formula of the sphere.
TEST(Projection, LambertConformalOnASphere) {
    MapSetting map = plane("LCC", "NWS-84", 40, -97);
    map.latitude1 = 33;
    map.latitude2 = 45;
    map.falseNorthing = 12.5;
    const double radius = 6370;
    const auto half = [](double latitude) { return std::tan((45 + latitude / 2) * degree); };
    const double n = std::log(std::cos(33 * degree) / std::cos(45 * degree)) / std::log(half(45) / half(33));
    const double f = std::cos(33 * degree) * std::pow(half(33), n) / n;
    const auto rho = [&](double latitude) { return radius * f / std::pow(half(latitude), n); };
    const double angle = n * (-90.5 + 97) * degree;
    const MapPoint point = converted({-90.5, 36.25}, degrees("NWS-84"), map);
    EXPECT_NEAR(point.x, rho(36.25) * std::sin(angle), metre);
    EXPECT_NEAR(point.y, 12.5 + rho(40) - rho(36.25) * std::cos(angle), metre);
}

TEST(Projection, PolarMapsCountFromTheirOrigin) {
    MapSetting map = plane("PS", "NWS-84", 60, 10);
    map.latitude1 = 60;
    const MapPoint origin = converted({10, 60}, degrees("NWS-84"), map);
    EXPECT_NEAR(origin.x, 0, metre);
    EXPECT_NEAR(origin.y, 0, metre);
    const double rho = 6370 * (1 + std::sin(60 * degree)) * std::tan((45 - 35.0) * degree);  // of latitude 70
    const double rho0 = 6370 * (1 + std::sin(60 * degree)) * std::tan((45 - 30.0) * degree);
    EXPECT_NEAR(converted({10, 70}, degrees("NWS-84"), map).y, rho0 - rho, metre);
    map.latitude1 = -60;
    map.latitude0 = -90;
    EXPECT_NEAR(converted({10, -70}, degrees("NWS-84"), map).y, rho, metre);
}

TEST(Projection, MercatorAndEqualAreaAndTransverse) {
    const MapPoint mercator = converted({20, 30}, degrees("ESR-S"), plane("EM", "ESR-S", 45, 15));
    EXPECT_NEAR(mercator.x, 6371 * 5 * degree, metre);
    EXPECT_NEAR(mercator.y, 6371 * std::log(std::tan((45 + 15.0) * degree)), metre);
    const MapPoint area = converted({15, 50}, degrees("ESR-S"), plane("LAZA", "ESR-S", 45, 15));
    EXPECT_NEAR(area.y, 2 * 6371 * std::sin(2.5 * degree), metre);
    const MapPoint transverse = converted({15, 50}, degrees("ESR-S"), plane("TTM", "ESR-S", 45, 15));
    EXPECT_NEAR(transverse.y, 6371 * 5 * degree, metre);
}

TEST(Projection, SpheresKeepLatitudeAndLongitude) {
    const MapPoint point = converted({-97, 40}, degrees("WGS-84"), degrees("NWS-84"));
    EXPECT_NEAR(point.x, -97, 1e-9);
    EXPECT_NEAR(point.y, 40, 1e-9);
}

TEST(Projection, TheDatumOf1927LiesTensOfMetresAside) {
    const MapPoint point = converted({-97, 40}, degrees("NAD27"), degrees("WGS-84"));
    EXPECT_GT(std::abs(point.x + 97) * 85000, 10);  // metres
    EXPECT_LT(std::abs(point.x + 97) * 85000, 60);
    EXPECT_EQ(datumDefinition("NAD27"), datumDefinition("nas-c"));
}

TEST(Projection, UnknownCodesAndPlacesAreNamed) {
    EXPECT_FALSE(datumDefinition("ABC-9"));
    EXPECT_EQ(failureOf([] {
                  converted({0, 0}, degrees("ABC-9"), degrees("WGS-84"));
              }),
              "projection LL, datum ABC-9: \"ABC-9\" is no datum code that is known here");
    EXPECT_NE(failureOf([] { converted({10, 95}, degrees("WGS-84"), plane("EM", "WGS-84", 0, 0)); }), "");
    MapSetting flat = plane("LCC", "WGS-84", 0, 0);  // parallels on both sides at one distance make no cone
    flat.latitude1 = 30;
    flat.latitude2 = -30;
    EXPECT_NE(failureOf([&] { converted({10, 9}, degrees("WGS-84"), flat); }), "");
}

}  // namespace zg::tempoline
