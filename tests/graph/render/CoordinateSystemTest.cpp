#include "graph/render/CoordinateSystem.h"

#include <gtest/gtest.h>

#include <cmath>

#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

struct CoordinateSystem : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables();
    RecordingCanvas canvas{300, 300};
    PolarGeometry geometry;

    void redraw() {
        canvas.commands.clear();
        redrawFrame(settings, polar, tables, canvas, geometry);
    }
};

TEST_F(CoordinateSystem, DiscIsFilledAndOutlinedInTheGridsFillColour) {
    polar.FillColor = rgb(200, 210, 220);
    redraw();
    EXPECT_EQ(canvas.all<drawn::Disc>(),
              (std::vector<drawn::Disc>{{{150, 150}, 100, rgb(200, 210, 220), rgb(200, 210, 220)}}));
}

TEST_F(CoordinateSystem, OneRingAUnitInTheGridLineColour) {
    tables.GridLineColor = 255;
    redraw();
    const auto rings = canvas.all<drawn::Circle>();
    ASSERT_EQ(rings.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(rings[i], (drawn::Circle{{150, 150}, 20.0 * static_cast<double>(i + 1), rgb(255, 0, 0)}));
}

TEST_F(CoordinateSystem, GridLinesAreGreyByDefault) {
    redraw();
    EXPECT_EQ(canvas.all<drawn::Circle>().at(0).colour, rgb(224, 224, 224));
    EXPECT_EQ(canvas.all<drawn::Line>().at(0).style, (LineStyle{rgb(224, 224, 224), 1, 0}));
}

TEST_F(CoordinateSystem, BrokenRadiusHasRingsForItsWholeUnitsAndSpokesToItsEnd) {
    polar.Radius = 7.5F;
    redraw();
    const double unit = static_cast<double>(geometry.UnitLength);
    EXPECT_NEAR(unit, 150 / 7.5 / 1.5, 1e-5);
    EXPECT_EQ(canvas.all<drawn::Circle>().size(), 7U);
    EXPECT_NEAR(canvas.all<drawn::Line>().at(0).to.x, 150 + 7.5 * unit, 1e-9);
    EXPECT_NEAR(canvas.all<drawn::Disc>().at(0).radius, 7.5 * unit, 1e-9);
}

TEST_F(CoordinateSystem, FineGridHasSixtyFourSpokesAroundFromEast) {
    redraw();
    const auto spokes = canvas.all<drawn::Line>();
    ASSERT_EQ(spokes.size(), 64U);
    for (std::size_t j = 0; j < 64; ++j) {
        const double angle = static_cast<double>(j) * 5.625 * std::acos(-1.0) / 180;
        EXPECT_EQ(spokes[j].from, (Point{150, 150})) << j;
        EXPECT_NEAR(spokes[j].to.x, 150 + 100 * std::cos(angle), 1e-9) << j;
        EXPECT_NEAR(spokes[j].to.y, 150 + 100 * std::sin(angle), 1e-9) << j;
    }
}

TEST_F(CoordinateSystem, CoarseGridHasSixteenSpokes) {
    settings.ShowGrid = 2;
    redraw();
    const auto spokes = canvas.all<drawn::Line>();
    ASSERT_EQ(spokes.size(), 16U);
    EXPECT_NEAR(spokes[4].to.x, 150, 1e-9);
    EXPECT_NEAR(spokes[4].to.y, 250, 1e-9);
}

TEST_F(CoordinateSystem, WithoutAGridDiscAndSectorsStay) {
    settings.ShowGrid = 0;
    redraw();
    EXPECT_TRUE(canvas.all<drawn::Circle>().empty());
    EXPECT_TRUE(canvas.all<drawn::Line>().empty());
    EXPECT_EQ(canvas.all<drawn::Disc>().size(), 1U);
    EXPECT_EQ(canvas.all<drawn::Pie>().size(), 96U);
}

TEST_F(CoordinateSystem, AnyOtherGridValueHasRingsWithoutSpokes) {
    for (const std::int32_t value : {3, -1, 2000000000}) {
        settings.ShowGrid = 1;
        redraw();  // so that spokes of an earlier redraw do not count
        settings.ShowGrid = value;
        redraw();
        EXPECT_EQ(canvas.all<drawn::Circle>().size(), 5U) << value;
        EXPECT_TRUE(canvas.all<drawn::Line>().empty()) << value;
    }
}

}  // namespace
}  // namespace zg
