#include "tempoline/readers/Grid.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

Grid fourByThree() {
    Grid grid;
    grid.map.projection = "UTM";
    grid.map.utmZone = 18;
    grid.x1 = 500;
    grid.y1 = 4500;
    grid.cellSize = 2;
    grid.lastI = 4;
    grid.lastJ = 3;
    return grid;
}

std::vector<CellShare> cellsOf(const Control& control, const Grid& grid) {
    const OutputRequest& output = control.outputs[0];
    return cellsAround(placeIn(grid, output, control), output, control.method, grid);
}

std::vector<CellShare> around(double x, double y, SpatialMethod method = SpatialMethod::Bilinear) {
    Control control = dayControl();
    control.map = fourByThree().map;
    control.method = method;
    control.outputs[0].x = x;
    control.outputs[0].y = y;
    return cellsOf(control, fourByThree());
}

}  // namespace

TEST(Grid, ACentreIsOneCell) {
    const std::vector<CellShare> shares = around(502, 4504);
    ASSERT_EQ(shares.size(), 1U);
    EXPECT_EQ(shares[0].i, 2);
    EXPECT_EQ(shares[0].j, 3);
}

TEST(Grid, WeightsOfFourCells) {
    const std::vector<CellShare> shares = around(500.5, 4501.5);
    ASSERT_EQ(shares.size(), 4U);
    EXPECT_NEAR(shares[0].weight, 0.75 * 0.25, 1e-6);
    EXPECT_NEAR(shares[3].weight, 0.25 * 0.75, 1e-6);
    EXPECT_EQ(shares[3].i, 2);
    EXPECT_EQ(shares[3].j, 2);
}

TEST(Grid, TheOuterHalvesOfCellsBelongToThem) {
    ASSERT_EQ(around(499.1, 4499.1).size(), 1U);
    EXPECT_EQ(around(506.9, 4504.9)[0].i, 4);
    EXPECT_EQ(around(502.99, 4500.99, SpatialMethod::Nearest)[0].i, 2);
    EXPECT_EQ(around(503, 4501, SpatialMethod::Nearest)[0].j, 2);
}

TEST(Grid, APlaceOutsideIsNamed) {
    EXPECT_EQ(failureOf([] { around(498.9, 4502); }),
              "the location 498.9000, 4502.0000 of output out lies outside the grid");
    EXPECT_NE(failureOf([] { around(502, 4505.1); }), "");
}

TEST(Grid, LongitudesCountOnOverTheDateLine) {
    Grid grid;
    grid.map.projection = "LL";
    grid.lastI = 3;
    grid.lastJ = 2;
    const auto firstCell = [&](double west, double longitude, const char* datum) {
        grid.x1 = west;
        grid.y1 = 40;
        Control control = dayControl();
        control.map = grid.map;
        control.map.datum = datum;
        control.outputs[0].x = longitude;
        control.outputs[0].y = 40;
        control.method = SpatialMethod::Nearest;
        return cellsOf(control, grid)[0].i;
    };
    for (const char* const datum : {"WGS-84", "NAS-C"}) {
        EXPECT_EQ(firstCell(190, -169.1, datum), 2);
        EXPECT_EQ(firstCell(190, 190.9, datum), 2);
        EXPECT_EQ(firstCell(179.5, -179.7, datum), 2);
        EXPECT_EQ(firstCell(179.5, 179.3, datum), 1);
        EXPECT_EQ(firstCell(-181, 179.1, datum), 1);
        EXPECT_EQ(firstCell(-75, -74.1, datum), 2);
        EXPECT_NE(failureOf([&] { firstCell(190, -171, datum); }), "");
    }
    EXPECT_EQ(firstCell(190, -170.5, "WGS-84"), 1) << "the western edge belongs to the grid";
    EXPECT_EQ(firstCell(190, -167.5, "WGS-84"), 3) << "the eastern one too";
    grid.cellSize = 0.1;  // whose fractions have no exact binary form
    EXPECT_EQ(firstCell(-179.85, -179.9, "WGS-84"), 1);
    EXPECT_EQ(firstCell(-179.85, -179.6, "WGS-84"), 3);
    EXPECT_NE(failureOf([&] { firstCell(-179.85, -179.9001, "WGS-84"); }), "");
}

TEST(Grid, OnTheMapOfTheDataXAndYAreTakenAsTheyStand) {
    Grid grid = fourByThree();
    grid.map.projection = "EM";
    grid.map.datum = "NWS-84";
    grid.map.longitude0 = -97;
    grid.map.latitude1 = 20;
    grid.x1 = 594;
    Control control = dayControl();
    control.map = grid.map;
    control.map.latitude1 = 0;  // no control file can state it
    control.outputs[0].x = 600;
    control.outputs[0].y = 4500;
    EXPECT_EQ(placeIn(grid, control.outputs[0], control).onMap.x, 600);
    EXPECT_EQ(cellsOf(control, grid)[0].i, 4);
    control.map.longitude0 = -96.9;  // off by 10.4 km at the equator, and true there
    EXPECT_NEAR(placeIn(grid, control.outputs[0], control).onMap.x,
                (600 + 11.1177) * std::cos(20 * 0.0174532925), 0.01);
}

TEST(Grid, OneMissingCellMakesTheWindMissing) {
    const std::vector<CellShare> shares = {{1, 1, 0.5}, {2, 1, 0.5}};
    EXPECT_FALSE(hasSpeed(combined(shares, {{4, 90}, {}})));
    EXPECT_EQ(combined(shares, {{4, 90}, {2, 90}}).speed, 3);
    EXPECT_EQ(combined(shares, {{4, 90}, {0, missingValue}}).speed, 2);
}

TEST(Grid, NeutralProfile) {
    EXPECT_EQ(neutralProfile({5, 120}, 10, 10).speed, 5);
    EXPECT_EQ(neutralProfile({5, 120}, 100, 10).speed, roundedToMillionth(5 * 2.0 / 3.0));
    EXPECT_EQ(neutralProfile({5, 120}, 100, 10).direction, 120);
    EXPECT_EQ(neutralProfile({5, 120}, 100, 0.1).speed, 0);
    EXPECT_FALSE(hasSpeed(neutralProfile({99, 120}, 100, 10)));
}

}  // namespace zg::tempoline
