#include "graph/render/Legend.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

constexpr double left = 300 - 300 / 3.25;
constexpr double boxWidth = 300 / 3.25;

TEST(LegendLayout, BoxFillsTheLowerRightCorner) {
    EXPECT_EQ(legendLayout(300, 300).box, (Rect{left, 240, 300, 300}));
    EXPECT_EQ(legendLayout(650, 1000).box, (Rect{450, 800, 650, 1000}));
}

TEST(LegendLayout, LinesAndSwatchesFollowTheBox) {
    const LegendLayout layout = legendLayout(300, 300);
    EXPECT_EQ(layout.calmLine, (Point{left + 3, 243}));
    double top = 251;
    for (const LegendLayout::Row& row : layout.rows) {
        EXPECT_NEAR(row.swatch.left, left + 3, 1e-9);
        EXPECT_NEAR(row.swatch.right, left + 3 + boxWidth / 5, 1e-9);
        EXPECT_NEAR(row.swatch.top, top, 1e-9);
        EXPECT_NEAR(row.swatch.bottom, top + 4, 1e-9);
        EXPECT_EQ(row.text, (Point{row.swatch.right, row.swatch.top}));
        top += 7;
    }
}

struct Legend : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables(3);
    RecordingCanvas canvas{300, 300};
    PolarGeometry geometry;

    std::vector<std::string> legendTexts() {
        canvas.commands.clear();
        settings.ShowCoordinateSystem = settings.ShowLabel = false;
        tables.GraphTitle = tables.GraphSubTitle = tables.GraphCaption = "";
        redrawFrame(settings, polar, tables, canvas, geometry);
        return canvas.texts();
    }
};

TEST_F(Legend, IsDrawnInTheFactoryColoursWithoutAFrame) {
    legendTexts();
    const auto rectangles = canvas.all<drawn::FillRectangle>();
    ASSERT_EQ(rectangles.size(), 7U);
    EXPECT_EQ(rectangles[0], (drawn::FillRectangle{{left, 240, 300, 300}, white}));
    const Colour colours[] = {rgb(255, 0, 0),   rgb(0, 255, 0),   rgb(0, 0, 255),
                              rgb(255, 255, 0), rgb(0, 255, 255), rgb(0, 0, 0)};
    const LegendLayout layout = legendLayout(300, 300);
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_EQ(rectangles[i + 1], (drawn::FillRectangle{layout.rows[i].swatch, colours[i]})) << i;
    EXPECT_TRUE(canvas.all<drawn::Line>().empty());
}

TEST_F(Legend, TextsStandInTheLegendFontAtTheirPlaces) {
    tables.LegendFont = {255, "Courier", 9, true, true};
    legendTexts();
    const LegendLayout layout = legendLayout(300, 300);
    const TextStyle style{"Courier", 9, true, true, rgb(255, 0, 0)};
    const auto texts = canvas.all<drawn::Text>();
    ASSERT_EQ(texts.size(), 7U);
    EXPECT_EQ(texts[0], (drawn::Text{layout.calmLine, "Calm Winds [<0.5 m/s] = 1.50%", style}));
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(texts[i + 1].at, layout.rows[i].text) << i;
        EXPECT_EQ(texts[i + 1].style, style) << i;
    }
}

TEST_F(Legend, LimitsAreTrimmedAndTheLastClassIsOpen) {
    EXPECT_EQ(legendTexts(),
              (std::vector<std::string>{"Calm Winds [<0.5 m/s] = 1.50%", "  =  0.5 to 1.8 m/s",
                                        "  =  1.8 to 3.3 m/s", "  =  3.3 to 5.4 m/s", "  =  5.4 to 8.5 m/s",
                                        "  =  8.5 to 10.8 m/s", "  =  10.8+ m/s"}));
}

TEST_F(Legend, CalmFigureIsThatOfTheRoseOnShow) {
    tables.CurrentRose = 3;
    EXPECT_EQ(legendTexts().front(), "Calm Winds [<0.5 m/s] = 3.50%");
}

TEST_F(Legend, KnotsChangeLimitsAndUnitEverywhereAtOnce) {
    tables.KnotClassLimit.assign({"9.72E-01", "0.97", "3.5", "6.41", "10.5", "16.52", "20.99"});
    tables.ClassesFromFile = false;
    tables.ClassesInKnots = true;
    tables.KnotTableReady = true;
    EXPECT_EQ(legendTexts(), (std::vector<std::string>{"Calm Winds [<9.72E-01 knots] = 1.50%",
                                                       "  =  0.97 to 3.5 knots", "  =  3.5 to 6.41 knots",
                                                       "  =  6.41 to 10.5 knots", "  =  10.5 to 16.52 knots",
                                                       "  =  16.52 to 20.99 knots", "  =  20.99+ knots"}));
}

TEST_F(Legend, WithoutAChosenUnitLimitsAndUnitAreEmpty) {
    legendTexts();
    tables.ClassesFromFile = false;
    EXPECT_EQ(legendTexts(), (std::vector<std::string>{"Calm Winds [< ] = 1.50%", "  =   to  ", "  =   to  ",
                                                       "  =   to  ", "  =   to  ", "  =   to  ", "  =  + "}));
}

TEST_F(Legend, FileWithoutRosesHasBoxAndSwatchesButNoCalmLine) {
    tables.FrqRoseCount = 0;
    const std::vector<std::string> texts = legendTexts();
    EXPECT_EQ(canvas.all<drawn::FillRectangle>().size(), 7U);
    ASSERT_EQ(texts.size(), 7U);
    EXPECT_EQ(texts.front(), "  =  0.5 to 1.8 m/s");
    EXPECT_EQ(texts.back(), "");  // the notice for a file without roses
}

TEST_F(Legend, TooFewLimitsAreAnErrorOfTheSubscript) {
    tables.FrqClassLimit.assign({"0.5", "1.8"});
    try {
        legendTexts();
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number, 9);
    }
}

TEST_F(Legend, ColoursKeptWithALostDigitPaintAsWhite) {
    tables.WindClassColor[2] = 16777220.0F;
    legendTexts();
    EXPECT_EQ(canvas.all<drawn::FillRectangle>().at(3).colour, white);
}

TEST_F(Legend, LinesKeepTheirSizeAtEveryZoomUnlessTheyShallShrink) {
    settings.Zoom = 25;
    legendTexts();
    for (const drawn::Text& line : canvas.all<drawn::Text>()) EXPECT_EQ(line.style.size, 7) << line.text;
}

TEST_F(Legend, LinesThatShrinkDoSoBelowAHundredPercentOnlyAndStayWhereTheyAre) {
    settings.Style.shrinkTexts = true;
    for (const auto& [zoom, size] :
         {std::pair<std::int16_t, double>{25, 1.75}, {50, 3.5}, {99, 6.93}, {100, 7}, {500, 7}}) {
        settings.Zoom = zoom;
        legendTexts();
        const auto lines = canvas.all<drawn::Text>();
        ASSERT_EQ(lines.size(), 7U);
        const LegendLayout layout = legendLayout(300, 300);
        EXPECT_EQ(lines[0].at, layout.calmLine);
        for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(lines[i + 1].at, layout.rows[i].text);
        for (const drawn::Text& line : lines) EXPECT_NEAR(line.style.size, size, 1e-9) << zoom;
    }
    EXPECT_EQ(tables.LegendFont.size, 7);
}

}  // namespace
}  // namespace zg
