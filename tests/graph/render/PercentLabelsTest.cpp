#include "graph/render/PercentLabels.h"

#include <gtest/gtest.h>

#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

struct PercentLabels : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables();
    RecordingCanvas canvas{300, 300};
    PolarGeometry geometry;

    /// The percent labels of a redraw.
    std::vector<drawn::Text> redraw() {
        canvas.commands.clear();
        redrawFrame(settings, polar, tables, canvas, geometry);
        std::vector<drawn::Text> labels;
        for (const drawn::Text& text : canvas.all<drawn::Text>())
            if (text.text.size() <= 4 && text.text.ends_with('%')) labels.push_back(text);
        return labels;
    }
};

constexpr double cosine = 0.98078528040323;  // of 11.25 degrees
constexpr double sine = 0.19509032201613;

/// The position of label j on the surface of 300 with unit length 20, after a label of that size.
Point place(int j, double previousWidth, double previousHeight) {
    return {(300 - 2.5 * previousWidth) / 2 + 20 * j * cosine + 0.75 * previousWidth * cosine,
            (300 - 0.5 * previousHeight) / 2 - 20 * j * sine - 0.75 * previousHeight * sine};
}

void expectAt(const drawn::Text& text, Point expected) {
    EXPECT_NEAR(text.at.x, expected.x, 1e-9) << text.text;
    EXPECT_NEAR(text.at.y, expected.y, 1e-9) << text.text;
}

TEST_F(PercentLabels, StandBesideTheRingsByTheSizeOfTheLabelBefore) {
    const auto labels = redraw();
    ASSERT_EQ(labels.size(), 5U);
    expectAt(labels[0], place(1, 18, 12));  // "ESE" in the direction font
    expectAt(labels[1], place(2, 10.5, 10.5));
    expectAt(labels[2], place(3, 15.75, 10.5));
    expectAt(labels[3], place(4, 15.75, 10.5));
    expectAt(labels[4], place(5, 15.75, 10.5));
    EXPECT_NEAR(labels[0].at.x, 160.3563, 1e-4);
    EXPECT_NEAR(labels[0].at.y, 141.3424, 1e-4);
}

TEST_F(PercentLabels, FirstFollowsTheDirectionFont) {
    tables.DirectionFont.size = 16;
    const auto labels = redraw();
    expectAt(labels[0], place(1, 36, 24));
    expectAt(labels[1], place(2, 10.5, 10.5));
}

TEST_F(PercentLabels, LaterOnesFollowThePercentFont) {
    tables.PercentFont = {65280, "Courier", 14, true, true};
    const auto labels = redraw();
    expectAt(labels[0], place(1, 18, 12));
    expectAt(labels[1], place(2, 21, 21));
    for (const drawn::Text& label : labels)
        EXPECT_EQ(label.style, (TextStyle{"Courier", 14, true, true, rgb(0, 255, 0)}));
}

TEST_F(PercentLabels, WithoutDirectionLabelsTheFirstTakesTheLineHeightOfTheTitles) {
    settings.ShowCoordinateSystem = false;
    tables.LabelFont.size = 20;
    expectAt(redraw().at(0), place(1, 0, 30));
}

TEST_F(PercentLabels, WithoutTitlesTheFirstTakesTheLineHeightOfTheLegend) {
    settings.ShowCoordinateSystem = false;
    tables.GraphTitle = tables.GraphSubTitle = tables.GraphCaption = "";
    tables.LegendFont.size = 10;
    expectAt(redraw().at(0), place(1, 0, 15));
}

TEST_F(PercentLabels, WithoutAnyTextTheFirstTakesTheLineHeightOfTheSurface) {
    tables.FrqLoaded = false;
    tables.GraphTitle = tables.GraphSubTitle = tables.GraphCaption = "";
    expectAt(redraw().at(0), place(1, 0, 12));
    tables.PlotFont.size = 32;
    expectAt(redraw().at(0), place(1, 0, 48));
}

TEST_F(PercentLabels, EachRedrawBeginsWithTheStyleOfTheSurface) {
    tables.FrqLoaded = false;
    tables.GraphTitle = tables.GraphSubTitle = tables.GraphCaption = "";
    const auto first = redraw();
    EXPECT_EQ(redraw(), first);
}

TEST_F(PercentLabels, EmptyLastDirectionLabelHasNoWidthButItsFontsHeight) {
    tables.FrqDirectionLabel(6) = "";
    expectAt(redraw().at(0), place(1, 0, 12));
}

TEST_F(PercentLabels, WholeUnitsCount) {
    polar.Radius = 7.5F;
    const auto labels = redraw();
    ASSERT_EQ(labels.size(), 7U);
    EXPECT_EQ(labels.back().text, "35%");
    polar.Radius = 0.5F;
    EXPECT_TRUE(redraw().empty());
}

TEST_F(PercentLabels, AreFivePercentAUnitWhateverTheGridsUnit) {
    polar.Unit = 2;
    const auto labels = redraw();
    EXPECT_EQ(labels[0].text, "5%");
    EXPECT_EQ(labels[4].text, "25%");
}

TEST_F(PercentLabels, NeedNoFile) {
    tables.FrqLoaded = false;
    EXPECT_EQ(redraw().size(), 5U);
}

}  // namespace
}  // namespace zg
