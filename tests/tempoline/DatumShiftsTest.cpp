#include <gtest/gtest.h>
#include <proj.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <numbers>
#include <set>
#include <string>
#include <vector>

#include "formats/Datums.h"
#include "tempoline/Projection.h"

namespace zg::tempoline {

namespace {

constexpr double degree = std::numbers::pi / 180;

struct Figure {
    double axis;  // m
    double inverseFlattening;
};
/// Allows for two millimetres at the pole: PROJ defines Modified Airy by its polar axis, rounded to
/// millimetres.
constexpr double sameFlattening = 3e-5;
constexpr Figure wgs84{6378137, 298.257223563};

// The figures of each ellipsoid in the table of shifts, by its name in datums.csv.
const std::map<std::string, Figure> figures = {
    {"Airy 1830", {6377563.396, 299.3249646}},
    {"Australian National", {6378160, 298.25}},
    {"Bessel 1841", {6377397.155, 299.1528128}},
    {"Bessel 1841 (Namibia)", {6377483.865, 299.1528128}},
    {"Clarke 1866", {6378206.4, 294.9786982}},
    {"Clarke 1880", {6378249.145, 293.465}},
    {"Everest 1830", {6377276.345, 300.8017}},
    {"Everest 1948", {6377304.063, 300.8017}},
    {"Everest 1956", {6377301.243, 300.8017}},
    {"Everest (Pakistan)", {6377309.613, 300.8017}},
    {"Everest (Sabah, Sarawak)", {6377298.556, 300.8017}},
    {"GRS 80", {6378137, 298.257222101}},
    {"Helmert 1906", {6378200, 298.3}},
    {"Hough 1960", {6378270, 297}},
    {"Indonesian 1974", {6378160, 298.247}},
    {"International 1924", {6378388, 297}},
    {"Krassovsky 1940", {6378245, 298.3}},
    {"Modified Airy", {6377340.189, 299.3249646}},
    {"Modified Fischer 1960", {6378155, 298.3}},
    {"South American 1969", {6378160, 298.25}},
    {"WGS 84", wgs84},
};

const std::set<std::string> moreThanAShift = {"WGS-84", "WGS-72", "NWS-84", "ESR-S"};
const std::set<std::string> unknown = {"NAP"};
/// These have PROJ's own flattening: 1/293.4663.
const std::set<std::string> otherClarke = {"ADI-M", "ARF-M", "CAP"};

struct DatumShift {
    std::string code;
    int x = 0;  // m
    int y = 0;
    int z = 0;
};

std::vector<DatumShift> datumShifts() {
    std::vector<DatumShift> shifts;
    for (const DatumRegion& row : builtInDatums().rows)
        if (row.shift) shifts.push_back({row.code, row.shift->at(0), row.shift->at(1), row.shift->at(2)});
    return shifts;
}

/// The fields between commas; double quotes protect a comma.
std::vector<std::string> fieldsOf(const std::string& line) {
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
    return fields;
}

/// Code -> name of the ellipsoid.
std::map<std::string, std::string> deliveredDatums() {
    std::map<std::string, std::string> datums;
    std::ifstream file(ZG_SOURCE_DIR "/data/datums.csv");
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        const std::vector<std::string> fields = fieldsOf(line);
        if (number > 2) datums[fields.at(3)] = fields.at(1).substr(fields.at(1).rfind(" - ") + 3);
    }
    return datums;
}

MapSetting degrees(const std::string& datum) {
    MapSetting map;
    map.projection = "LL";
    map.datum = datum;
    return map;
}

/// The ellipsoid as PROJ understands the definition; all zeros if PROJ rejects it.
Figure figureOf(const std::string& definition) {
    Figure figure{};
    PJ* crs = proj_create(PJ_DEFAULT_CTX, ("+proj=longlat " + definition + " +no_defs +type=crs").c_str());
    PJ* ellipsoid = crs ? proj_get_ellipsoid(PJ_DEFAULT_CTX, crs) : nullptr;
    if (ellipsoid)
        proj_ellipsoid_get_parameters(PJ_DEFAULT_CTX, ellipsoid, &figure.axis, nullptr, nullptr,
                                      &figure.inverseFlattening);
    proj_destroy(ellipsoid);
    proj_destroy(crs);
    return figure;
}

double squaredEccentricity(const Figure& figure) {
    const double flattening = 1 / figure.inverseFlattening;
    return flattening * (2 - flattening);
}

std::array<double, 3> geocentric(MapPoint point, const Figure& figure) {
    const double sine = std::sin(point.y * degree);
    const double e2 = squaredEccentricity(figure);
    const double normal = figure.axis / std::sqrt(1 - e2 * sine * sine);
    const double fromAxis = normal * std::cos(point.y * degree);
    return {fromAxis * std::cos(point.x * degree), fromAxis * std::sin(point.x * degree),
            normal * (1 - e2) * sine};
}

MapPoint geographic(const std::array<double, 3>& place, const Figure& figure) {
    const double fromAxis = std::hypot(place[0], place[1]);
    const double e2 = squaredEccentricity(figure);
    double latitude = std::atan2(place[2], fromAxis * (1 - e2));
    for (int i = 0; i < 20; ++i) {
        const double sine = std::sin(latitude);
        const double normal = figure.axis / std::sqrt(1 - e2 * sine * sine);
        latitude = std::atan2(place[2] + e2 * normal * sine, fromAxis);
    }
    return {std::atan2(place[1], place[0]) / degree, latitude / degree};
}

/// The direct computation: to geocentric coordinates, three additions, and back on the other ellipsoid.
MapPoint shifted(MapPoint point, const Figure& figure, const DatumShift& shift) {
    std::array<double, 3> place = geocentric(point, figure);
    place[0] += shift.x;
    place[1] += shift.y;
    place[2] += shift.z;
    return geographic(place, wgs84);
}

/// m
double distance(MapPoint a, MapPoint b) {
    const double east = (b.x - a.x) * std::cos(a.y * degree);
    return std::hypot(east, b.y - a.y) * degree * wgs84.axis;
}

}  // namespace

TEST(DatumShifts, EachCodeStandsOnceAndIsOneOfTheDialogs) {
    const std::map<std::string, std::string> datums = deliveredDatums();
    std::set<std::string> codes;
    for (const DatumShift& shift : datumShifts()) {
        EXPECT_TRUE(codes.insert(shift.code).second) << shift.code;
        EXPECT_EQ(datums.count(shift.code), 1U) << shift.code;
    }
    EXPECT_EQ(codes.size(), 207U);
}

TEST(DatumShifts, EveryDatumOfTheDialogIsKnownButOne) {
    const std::map<std::string, std::string> datums = deliveredDatums();
    ASSERT_EQ(datums.size(), 212U);
    for (const auto& [code, ellipsoid] : datums)
        EXPECT_EQ(datumDefinition(code).has_value(), unknown.count(code) == 0) << code;
}

TEST(DatumShifts, TheEllipsoidIsTheOneOfTheDialog) {
    for (const auto& [code, ellipsoid] : deliveredDatums()) {
        if (moreThanAShift.count(code) > 0 || unknown.count(code) > 0) continue;
        ASSERT_EQ(figures.count(ellipsoid), 1U) << ellipsoid;
        const Figure figure = figureOf(*datumDefinition(code));
        EXPECT_NEAR(figure.axis, figures.at(ellipsoid).axis, 0.0005) << code;
        const double tolerance = otherClarke.count(code) > 0 ? 0.0014 : sameFlattening;
        EXPECT_NEAR(figure.inverseFlattening, figures.at(ellipsoid).inverseFlattening, tolerance) << code;
    }
}

/// Compared with the direct computation, at a place where x, y and z all matter.
TEST(DatumShifts, PointsMoveByTheShift) {
    const std::map<std::string, std::string> datums = deliveredDatums();
    for (const DatumShift& shift : datumShifts()) {
        if (otherClarke.count(shift.code) > 0) continue;
        const MapPoint from{35, 30};
        const MapPoint to = converted(from, degrees(shift.code), degrees("WGS-84"));
        const MapPoint expected = shifted(from, figures.at(datums.at(shift.code)), shift);
        EXPECT_LT(distance(to, expected), 0.002) << shift.code;
    }
}

/// Kusaie moves by 2.2 km, all others by at most 1.6 km.
TEST(DatumShifts, NoneIsOutOfTheWay) {
    for (const DatumShift& shift : datumShifts()) {
        const double length = std::hypot(shift.x, shift.y, shift.z);
        EXPECT_LT(length, std::string(shift.code) == "KUS" ? 2300 : 1600) << shift.code;
        if (std::string(shift.code).starts_with("NAR-") || std::string(shift.code) == "KGS")
            EXPECT_LT(length, 5) << shift.code;
        else
            EXPECT_GT(length, 20) << shift.code;
    }
}

TEST(DatumShifts, DefinitionsAreWhatTheyWere) {
    const std::map<std::string, std::string> definitions = {
        {"ADI-M", "+ellps=clrk80 +towgs84=-166,-15,204"},
        {"ARF-M", "+ellps=clrk80 +towgs84=-143,-90,-294"},
        {"AUA", "+ellps=aust_SA +towgs84=-133,-48,148"},
        {"AUG", "+ellps=aust_SA +towgs84=-134,-48,149"},
        {"CAP", "+ellps=clrk80 +towgs84=-136,-108,-292"},
        {"ESR-S", "+R=6371000 +nadgrids=@null"},
        {"EUR-M", "+ellps=intl +towgs84=-87,-98,-121"},
        {"EUS", "+ellps=intl +towgs84=-86,-98,-119"},
        {"GEO", "+ellps=intl +towgs84=84,-22,209"},
        {"IRL", "+ellps=mod_airy +towgs84=506,-122,611"},
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
        {"OGB-M", "+ellps=airy +towgs84=375,-111,431"},
        {"PRP-M", "+ellps=intl +towgs84=-288,175,-376"},
        {"SAN-M", "+ellps=aust_SA +towgs84=-57,1,-41"},
        {"TOY-M", "+ellps=bessel +towgs84=-148,507,685"},
        {"WGS-72", "+ellps=WGS72 +towgs84=0,0,4.5,0,0,0.554,0.2263"},
        {"WGS-84", "+datum=WGS84"},
    };
    for (const auto& [code, definition] : definitions)
        EXPECT_EQ(datumDefinition(code).value_or(""), definition) << code;
}

TEST(DatumShifts, SpotValues) {
    const std::map<std::string, std::string> definitions = {
        {"ADI-E", "+a=6378249.145 +rf=293.465 +towgs84=-118,-14,218"},
        {"IND-I", "+ellps=evrst56 +towgs84=295,736,257"},
        {"IND-P", "+a=6377309.613 +rf=300.8017 +towgs84=283,682,231"},
        {"IDN", "+a=6378160 +rf=298.247 +towgs84=-24,-15,5"},
        {"KGS", "+ellps=WGS84 +towgs84=0,0,0"},
        {"SCK", "+ellps=bess_nam +towgs84=616,97,-251"},
        {"KUS", "+ellps=intl +towgs84=647,1777,-1124"},
        {"ZAN", "+ellps=intl +towgs84=-265,120,-358"},
    };
    for (const auto& [code, definition] : definitions)
        EXPECT_EQ(datumDefinition(code).value_or(""), definition) << code;
}

}  // namespace zg::tempoline
