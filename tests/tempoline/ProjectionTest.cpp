#include "tempoline/Projection.h"

#include <gtest/gtest.h>
#include <proj.h>

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

/// Compared with the closed formula for the sphere.
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

/// Compared with the closed formula for the sphere.
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
    const MapPoint back = converted({0, rho0 - rho}, map, degrees("NWS-84"));
    EXPECT_NEAR(back.x, 10, 1e-6);
    EXPECT_NEAR(back.y, 70, 1e-6);
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

namespace {

double convergence(const MapSetting& map, double longitude, double latitude) {
    return convergenceAt(converted({longitude, latitude}, degrees(map.datum), map), map);
}

/// The map direction of a short way north, with the sign reversed.
double byTwoPoints(const MapSetting& map, double longitude, double latitude) {
    constexpr double way = 1e-4;  // degrees
    const MapPoint low = converted({longitude, latitude - way}, degrees(map.datum), map);
    const MapPoint high = converted({longitude, latitude + way}, degrees(map.datum), map);
    return -std::atan2(high.x - low.x, high.y - low.y) / degree;
}

/// The library's own result for a definition written here.
double byProj(const char* definition, double longitude, double latitude) {
    PJ_CONTEXT* const context = proj_context_create();
    PJ* const projection = proj_create(context, definition);
    EXPECT_NE(projection, nullptr) << definition;
    const PJ_FACTORS factors =
        proj_factors(projection, proj_coord(longitude * degree, latitude * degree, 0, 0));
    proj_destroy(projection);
    proj_context_destroy(context);
    return factors.meridian_convergence / degree;
}

}  // namespace

TEST(Projection, ConvergenceOfSpheresByTheirClosedFormulas) {
    constexpr double close = 1e-7;
    MapSetting cone = plane("LCC", "NWS-84", 40, -97);
    cone.latitude1 = 33;
    cone.latitude2 = 47;
    const auto half = [](double latitude) { return std::tan((45 + latitude / 2) * degree); };
    const double n = std::log(std::cos(33 * degree) / std::cos(47 * degree)) / std::log(half(47) / half(33));
    EXPECT_NEAR(convergence(cone, -76, 40), 21 * n, close);
    EXPECT_NEAR(convergence(cone, -110, 51.5), -13 * n, close);
    EXPECT_GT(21 * n, 13);
    MapSetting polar = plane("PS", "NWS-84", 90, 10);
    polar.latitude1 = 60;
    EXPECT_NEAR(convergence(polar, 35, 70), 25, close);
    EXPECT_NEAR(convergence(polar, -80, 66), -90, close);
    polar.latitude0 = 60;  // the origin does not matter
    EXPECT_NEAR(convergence(polar, 35, 70), 25, close);
    polar.latitude0 = -90;
    polar.latitude1 = -71;
    EXPECT_NEAR(convergence(polar, 35, -70), -25, close);
    EXPECT_NEAR(std::abs(convergence(polar, 190, -70)), 180, close);
    const auto transverse = [](double east, double latitude) {
        return std::atan(std::tan(east * degree) * std::sin(latitude * degree)) / degree;
    };
    EXPECT_NEAR(convergence(plane("TTM", "ESR-S", 45, 15), 19, 50), transverse(4, 50), close);
    MapSetting zone = plane("UTM", "NWS-84", 0, 0);
    zone.utmZone = 18;
    EXPECT_NEAR(convergence(zone, -72.5, 41), transverse(2.5, 41), close);
    zone.southern = true;
    EXPECT_NEAR(convergence(zone, -72.5, -41), transverse(2.5, -41), close);
    MapSetting mercator = plane("EM", "NWS-84", 0, -97);
    mercator.latitude1 = 20;
    EXPECT_NEAR(convergence(mercator, -70, 35), 0, close);
    EXPECT_EQ(convergence(degrees("NWS-84"), -70, 35), 0);
    EXPECT_NEAR(convergence(plane("LAZA", "ESR-S", 45, 15), 15, 60), 0, close);
}

TEST(Projection, ConvergenceIsThatOfProjAndOfTheWayToTheNorth) {
    MapSetting zone = plane("UTM", "NAS-C", 0, 0);
    zone.utmZone = 18;
    EXPECT_NEAR(convergence(zone, -72.5, 41), byProj("+proj=utm +zone=18 +ellps=clrk66", -72.5, 41), 1e-7);
    MapSetting cone = plane("LCC", "WGS-84", 40, -97);
    cone.latitude1 = 30;
    cone.latitude2 = 60;
    cone.falseEasting = 600;
    const char* const coneText = "+proj=lcc +lat_0=40 +lon_0=-97 +lat_1=30 +lat_2=60 +ellps=WGS84";
    EXPECT_NEAR(convergence(cone, -76, 43), byProj(coneText, -76, 43), 1e-7);
    const MapSetting area = plane("LAZA", "WGS-84", 45, 15);
    const char* const areaText = "+proj=laea +lat_0=45 +lon_0=15 +ellps=WGS84";
    EXPECT_NEAR(convergence(area, 24, 51), byProj(areaText, 24, 51), 1e-7);
    MapSetting polar = plane("PS", "EUR-M", 60, 10);
    polar.latitude1 = 60;
    for (const MapSetting& map : {zone, cone, area, polar, plane("TTM", "OGB-M", 49, -2)}) {
        const double longitude = map.projection == "UTM" || map.projection == "LCC" ? -72 : 8;
        EXPECT_NEAR(convergence(map, longitude, 47), byTwoPoints(map, longitude, 47), 1e-5) << map.projection;
    }
}

TEST(Projection, AtAPoleNothingIsNorth) {
    MapSetting polar = plane("PS", "NWS-84", 90, 10);
    polar.latitude1 = 60;
    EXPECT_EQ(failureOf([&] {
                  convergenceAt({0, 0}, polar);
              }),
              "projection PS, datum NWS-84: the point 0.0000, 0.0000 is a pole, where no direction is north");
    EXPECT_NEAR(convergenceAt({0, -100}, polar), 0, 1e-7);
}

TEST(Projection, TheSameMapWithinTheDigitsOfAHeader) {
    MapSetting a = plane("LCC", "NAS-C", 40.123456, -97.654321);
    a.latitude1 = 30;
    a.latitude2 = 60;
    a.falseEasting = 1234.56789;
    MapSetting b = a;
    EXPECT_TRUE(isSameMap(a, b));
    b.datum = "NAD27";
    b.latitude0 = 40.12346;
    b.longitude0 = 360 - 97.65432;
    b.falseEasting = 1234.568;
    EXPECT_TRUE(isSameMap(a, b));
    for (double MapSetting::*const part :
         {&MapSetting::latitude0, &MapSetting::longitude0, &MapSetting::latitude1, &MapSetting::latitude2,
          &MapSetting::falseEasting, &MapSetting::falseNorthing}) {
        b = a;
        b.*part += 0.01;
        EXPECT_FALSE(isSameMap(a, b));
    }
    b = a;
    b.datum = "NAS-B";
    EXPECT_FALSE(isSameMap(a, b));
    MapSetting zone = plane("UTM", "WGS-84", 0, 0);
    zone.utmZone = 18;
    MapSetting south = zone;
    south.southern = true;
    EXPECT_TRUE(isSameMap(zone, zone));
    EXPECT_FALSE(isSameMap(zone, south));
    EXPECT_FALSE(isSameMap(zone, a));
}

TEST(Projection, AMercatorMapTakesTheParallelOfTheData) {
    const MapSetting asked = plane("EM", "WGS-84", 0, -97);
    MapSetting data = plane("EM", "NWS-84", 0, -97);
    data.latitude1 = 20;
    EXPECT_EQ(completed(asked, data).latitude1, 20);
    data.longitude0 = -96;
    EXPECT_EQ(completed(asked, data).latitude1, 0);
    data.projection = "PS";
    EXPECT_EQ(completed(asked, data).latitude1, 0);
}

TEST(Projection, UnknownCodesAndPlacesAreNamed) {
    EXPECT_FALSE(datumDefinition("ABC-9"));
    EXPECT_EQ(failureOf([] {
                  converted({0, 0}, degrees("ABC-9"), degrees("WGS-84"));
              }),
              "projection LL, datum ABC-9: \"ABC-9\" is no datum code that is known here");
    EXPECT_NE(failureOf([] { converted({10, 95}, degrees("WGS-84"), plane("EM", "WGS-84", 0, 0)); }), "");
    MapSetting flat = plane("LCC", "WGS-84", 0, 0);  // symmetrical parallels do not define a cone
    flat.latitude1 = 30;
    flat.latitude2 = -30;
    EXPECT_NE(failureOf([&] { converted({10, 9}, degrees("WGS-84"), flat); }), "");
}

}  // namespace zg::tempoline
