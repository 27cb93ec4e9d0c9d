// The whole plot over the range of its options, each operation compared with geometry computed independently
// here.

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

constexpr double page = 600;

using Options = std::tuple<int, float, int, bool, bool>;  // percent, ratio, grid, legend, labels

class WholePlot : public ::testing::TestWithParam<Options> {};

bool writes(const RecordingCanvas& canvas, const std::string& part) {
    for (const drawn::Text& text : canvas.all<drawn::Text>())
        if (text.text.find(part) != std::string::npos) return true;
    return false;
}

TEST_P(WholePlot, IsDrawnToItsGeometry) {
    const auto& [percent, ratio, grid, legend, labels] = GetParam();
    PlotSettings settings;
    settings.Zoom = 100;
    settings.AspectRatio = ratio;
    settings.ShowGrid = grid;
    settings.ShowLegend = legend;
    settings.ShowLabel = labels;
    Polar polar;
    polar.Radius = static_cast<float>(percent) / 5;
    ModPolarGraph tables = roseTables(2);
    RecordingCanvas canvas{page, page};
    PolarGeometry geometry;
    redrawFrame(settings, polar, tables, canvas, geometry);

    const double unit = page / 2 / (percent / 5.0) / static_cast<double>(ratio);
    const double outer = unit * percent / 5;
    const double tolerance = 1e-5 * std::max(1.0, outer);
    const auto discs = canvas.all<drawn::Disc>();
    ASSERT_EQ(discs.size(), 1U);
    EXPECT_NEAR(discs[0].radius, outer, tolerance);
    EXPECT_EQ(discs[0].centre, (Point{page / 2, page / 2}));

    const auto rings = canvas.all<drawn::Circle>();
    EXPECT_EQ(rings.size(), grid == 0 ? 0U : static_cast<std::size_t>(percent / 5));
    for (std::size_t i = 0; i < rings.size(); ++i)
        EXPECT_NEAR(rings[i].radius, unit * static_cast<double>(i + 1), tolerance);
    const auto spokes = canvas.all<drawn::Line>();
    EXPECT_EQ(spokes.size(), grid == 0 ? 0U : (grid == 1 ? 64U : 16U));
    for (const drawn::Line& spoke : spokes)
        EXPECT_NEAR(std::hypot(spoke.to.x - page / 2, spoke.to.y - page / 2), outer, tolerance);

    const auto pies = canvas.all<drawn::Pie>();
    ASSERT_EQ(pies.size(), 96U);
    for (std::size_t i = 0; i < pies.size(); ++i) {
        const int sector = static_cast<int>(i / 6);
        const int lastClass = 6 - static_cast<int>(i % 6);
        const int fileRow = 1 + ((20 - sector) % 16);
        double share = 0;
        for (int c = 1; c <= lastClass; ++c) share += tables.FrqFraction(fileRow, c);
        EXPECT_NEAR(pies[i].radius, share * 20 * unit, tolerance)
            << "sector " << sector << " class " << lastClass;
    }
    EXPECT_EQ(writes(canvas, "Calm Winds"), legend);
    EXPECT_EQ(writes(canvas, tables.FrqDirectionLabel(5)), labels);
    EXPECT_EQ(writes(canvas, "%") && labels, labels);
    EXPECT_EQ(canvas.all<drawn::KeepPicture>().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Options, WholePlot,
                         ::testing::Combine(::testing::Values(5, 10, 25, 55, 100),
                                            ::testing::Values(0.0001F, 0.5F, 1.5F, 5.0F),
                                            ::testing::Values(0, 1, 2), ::testing::Bool(),
                                            ::testing::Bool()));

}  // namespace
}  // namespace zg
