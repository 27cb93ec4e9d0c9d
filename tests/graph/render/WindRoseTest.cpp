#include "graph/render/WindRose.h"

#include <gtest/gtest.h>

#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

constexpr double radiansPerDegree = 6.28318530718 / 360;

struct WindRose : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables(2);
    RecordingCanvas canvas{300, 300};
    PolarGeometry geometry;

    void redraw() {
        canvas.commands.clear();
        redrawFrame(settings, polar, tables, canvas, geometry);
    }

    /// The six bars of a sector as drawn, widest first.
    std::vector<drawn::Pie> stack(std::size_t sector) const {
        const auto pies = canvas.all<drawn::Pie>();
        EXPECT_EQ(pies.size(), 96U);
        const auto first = pies.begin() + static_cast<std::ptrdiff_t>(sector * 6);
        return {first, first + 6};
    }
};

TEST(WindRoseRows, RunClockwiseFromNorthWhileSectorsRunCounterclockwiseFromEast) {
    EXPECT_EQ(directionRow(0), 5);
    EXPECT_EQ(directionRow(4), 1);
    EXPECT_EQ(directionRow(5), 16);
    EXPECT_EQ(directionRow(8), 13);
    EXPECT_EQ(directionRow(12), 9);
    EXPECT_EQ(directionRow(15), 6);
}

TEST(WindRoseSpans, AreSevenAndAHalfDegreesAndWrapAtEast) {
    EXPECT_EQ(sectorSpan(0), (SectorSpan{356.25, 3.75}));
    EXPECT_EQ(sectorSpan(1), (SectorSpan{18.75, 26.25}));
    EXPECT_EQ(sectorSpan(4), (SectorSpan{86.25, 93.75}));
    EXPECT_EQ(sectorSpan(15), (SectorSpan{333.75, 341.25}));
}

TEST(DrawPiePiece, PassesRadiansAndOutlinesInTheScrollBarColour) {
    RecordingCanvas canvas;
    DrawPiePiece(canvas, 10, 20, 30, 65535, 356.25, 3.75);
    EXPECT_EQ(canvas.all<drawn::Pie>(), (std::vector<drawn::Pie>{{{10, 20},
                                                                  30,
                                                                  356.25 * radiansPerDegree,
                                                                  3.75 * radiansPerDegree,
                                                                  rgb(255, 255, 0),
                                                                  0x80000000U}}));
}

TEST_F(WindRose, StacksTheClassesFromTheWidestToTheFirst) {
    redraw();
    const auto bars = stack(0);
    // Cumulated percents 21, 15, 10, 6, 3, 1 at 4 units of length per percent.
    const double radii[] = {84, 60, 40, 24, 12, 4};
    const Colour fills[] = {rgb(0, 0, 0),   rgb(0, 255, 255), rgb(255, 255, 0),
                            rgb(0, 0, 255), rgb(0, 255, 0),   rgb(255, 0, 0)};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(bars[i].centre, (Point{150, 150})) << i;
        EXPECT_NEAR(bars[i].radius, radii[i], 1e-9) << i;
        EXPECT_EQ(bars[i].fill, fills[i]) << i;
        EXPECT_EQ(bars[i].outline, scrollBarColour) << i;
        EXPECT_EQ(bars[i].start, 356.25 * radiansPerDegree) << i;
        EXPECT_EQ(bars[i].end, 3.75 * radiansPerDegree) << i;
    }
}

TEST_F(WindRose, SectorsReadTheRowsOfTheRoseOnShow) {
    for (int row = 1; row <= 33; ++row)
        for (int c = 1; c <= 6; ++c) tables.FrqFraction(row, c) = c == 1 ? 0.001 * row : 0;
    tables.FrqFraction(17, 1) = 9;  // between the roses, never read
    redraw();
    EXPECT_NEAR(stack(0)[5].radius, 0.005 * 400, 1e-9);
    EXPECT_NEAR(stack(4)[5].radius, 0.001 * 400, 1e-9);
    EXPECT_NEAR(stack(5)[5].radius, 0.016 * 400, 1e-9);
    tables.CurrentRose = 2;
    redraw();
    EXPECT_NEAR(stack(4)[5].radius, 0.018 * 400, 1e-9);
    EXPECT_NEAR(stack(5)[5].radius, 0.033 * 400, 1e-9);
}

TEST_F(WindRose, QuarterOfThePeriodsReachesTheFifthRing) {
    for (int c = 1; c <= 6; ++c) tables.FrqFraction(1, c) = c == 3 ? 0.25 : 0;
    redraw();
    EXPECT_NEAR(stack(4)[0].radius, canvas.all<drawn::Circle>().at(4).radius, 1e-9);
}

TEST_F(WindRose, BarBeyondTheOuterRingIsNeitherClippedNorScaled) {
    for (int c = 1; c <= 6; ++c) tables.FrqFraction(1, c) = 0.25;
    redraw();
    EXPECT_NEAR(stack(4)[0].radius, 600, 1e-9);
}

TEST_F(WindRose, EmptyDirectionIsASectorWithoutRadius) {
    for (int c = 1; c <= 6; ++c) tables.FrqFraction(1, c) = 0;
    redraw();
    for (const drawn::Pie& bar : stack(4)) EXPECT_EQ(bar.radius, 0);
}

TEST_F(WindRose, ClassZeroIsNoPartOfTheStack) {
    tables.FrqFraction(1, 0) = 0.5;
    redraw();
    EXPECT_NEAR(stack(4)[5].radius, 4, 1e-9);
}

TEST_F(WindRose, LabelsStandOutsideTheOuterRing) {
    redraw();
    // "E" is 6 by 12: half the size back from the centre, the ring, and three quarters of the size out.
    const drawn::Text east = canvas.textReading("E");
    EXPECT_NEAR(east.at.x, 147 + 100 + 4.5, 1e-9);
    EXPECT_NEAR(east.at.y, 144, 1e-9);
    const drawn::Text north = canvas.textReading("N");
    EXPECT_NEAR(north.at.x, 147, 1e-9);
    EXPECT_NEAR(north.at.y, 144 - 100 - 9, 1e-9);
    const drawn::Text west = canvas.textReading("W");
    EXPECT_NEAR(west.at.x, 147 - 100 - 4.5, 1e-9);
    const drawn::Text south = canvas.textReading("S");
    EXPECT_NEAR(south.at.y, 144 + 100 + 9, 1e-9);
    const drawn::Text southEast = canvas.textReading("SE");
    EXPECT_NEAR(southEast.at.x, 144 + (100 + 9) * 0.70710678118, 1e-6);
    EXPECT_NEAR(southEast.at.y, 144 + (100 + 9) * 0.70710678118, 1e-6);
}

TEST_F(WindRose, LabelsFollowTheirFont) {
    tables.DirectionFont = {255, "Courier", 16, false, true};
    redraw();
    const drawn::Text east = canvas.textReading("E");
    EXPECT_EQ(east.style, (TextStyle{"Courier", 16, false, true, rgb(255, 0, 0)}));
    EXPECT_NEAR(east.at.x, (300 - 12) / 2.0 + 100 + 9, 1e-9);
    EXPECT_NEAR(east.at.y, (300 - 24) / 2.0, 1e-9);
}

TEST_F(WindRose, FactoryLabelsAreBold) {
    redraw();
    EXPECT_EQ(canvas.textReading("N").style, (TextStyle{"Arial", 8, true, false, black}));
}

TEST_F(WindRose, LabelsStayThoseOfTheFirstRose) {
    redraw();
    const auto before = canvas.texts();
    tables.CurrentRose = 2;
    redraw();
    const auto after = canvas.texts();
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 10; i < before.size(); ++i) EXPECT_EQ(before[i], after[i]);
}

TEST_F(WindRose, FileWithoutRosesHasLabelsButNoBars) {
    tables.FrqRoseCount = 0;
    redraw();
    EXPECT_TRUE(canvas.all<drawn::Pie>().empty());
    EXPECT_EQ(canvas.textReading("NNW").text, "NNW");
}

}  // namespace
}  // namespace zg
