#include "graph/render/RedrawGraph.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/RunTimeError.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

struct RedrawGraph : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables();
    RecordingCanvas canvas{300, 300};
    PolarGeometry geometry;

    void redraw() {
        canvas.commands.clear();
        redrawFrame(settings, polar, tables, canvas, geometry);
    }

    int numberOfRedrawError() {
        try {
            redraw();
        } catch (const RunTimeError& error) {
            return error.number;
        }
        return 0;
    }
};

using Kinds = std::vector<std::string>;

TEST(RedrawMode, SaysWhatFollowsTheFrame) {
    EXPECT_EQ(afterFrame(0), (AfterFrame{false, false}));
    EXPECT_EQ(afterFrame(1), (AfterFrame{true, false}));
    EXPECT_EQ(afterFrame(2), (AfterFrame{false, true}));
    for (const int mode : {3, 4, -1, 32767})
        EXPECT_EQ(afterFrame(static_cast<std::int16_t>(mode)), (AfterFrame{true, true}));
}

TEST_F(RedrawGraph, PaintsTheWholePlotInItsOrder) {
    redraw();
    Kinds expected{"Clear", "FillRectangle", "Text"};
    for (int i = 1; i <= 5; ++i) expected.insert(expected.end(), {"FillRectangle", "Text"});
    // The sixth class text and the three title lines, then the grid.
    expected.insert(expected.end(), {"FillRectangle", "Text x4", "Disc", "Circle x5", "Line x64"});
    for (int i = 0; i < 15; ++i) expected.insert(expected.end(), {"Pie x6", "Text"});
    // The last direction label and the five percent labels.
    expected.insert(expected.end(), {"Pie x6", "Text x6", "KeepPicture"});
    EXPECT_EQ(canvas.kinds(), expected);
}

TEST_F(RedrawGraph, WritesTheTextsInTheirOrder) {
    redraw();
    std::vector<std::string> expected{"Calm Winds [<0.5 m/s] = 1.50%",
                                      "  =  0.5 to 1.8 m/s",
                                      "  =  1.8 to 3.3 m/s",
                                      "  =  3.3 to 5.4 m/s",
                                      "  =  5.4 to 8.5 m/s",
                                      "  =  8.5 to 10.8 m/s",
                                      "  =  10.8+ m/s",
                                      "Title",
                                      "Subtitle",
                                      "Caption"};
    for (const std::string& label : labelsFromEast()) expected.push_back(label);
    for (const char* percent : {"5%", "10%", "15%", "20%", "25%"}) expected.emplace_back(percent);
    EXPECT_EQ(canvas.texts(), expected);
}

TEST_F(RedrawGraph, ClearsWithTheBackgroundColourFirst) {
    settings.BackColor = rgb(1, 2, 3);
    redraw();
    ASSERT_FALSE(canvas.commands.empty());
    EXPECT_EQ(canvas.commands.front(), drawn::Command(drawn::Clear{rgb(1, 2, 3)}));
}

TEST_F(RedrawGraph, KeepsThePictureLastAndOnce) {
    redraw();
    EXPECT_EQ(canvas.commands.back(), drawn::Command(drawn::KeepPicture{}));
    EXPECT_EQ(canvas.all<drawn::KeepPicture>().size(), 1U);
}

TEST_F(RedrawGraph, LaysThePictureUnderEverythingElse) {
    settings.Picture = std::make_shared<BlankPicture>(100, 80);
    redraw();
    ASSERT_EQ(canvas.all<drawn::Blit>().size(), 1U);
    EXPECT_EQ(canvas.commands[1], drawn::Command(drawn::Blit{settings.Picture, Rect{0, 0, 100, 80}}));
}

TEST_F(RedrawGraph, OuterRingTakesTwoThirdsOfTheHalfSizeByDefault) {
    redraw();
    EXPECT_EQ(geometry.CentreX, 150.0F);
    EXPECT_EQ(geometry.CentreY, 150.0F);
    EXPECT_EQ(geometry.OriginOffsetX, 0.0F);
    EXPECT_EQ(geometry.OriginOffsetY, 0.0F);
    EXPECT_EQ(geometry.UnitLength, 20.0F);
    EXPECT_EQ(canvas.all<drawn::Disc>().at(0), (drawn::Disc{{150, 150}, 100, white, white}));
}

TEST_F(RedrawGraph, MeasuresByTheSmallerHalfOfTheSurface) {
    canvas.resize(300, 600);
    redraw();
    EXPECT_EQ(geometry.UnitLength, 20.0F);
    EXPECT_EQ(geometry.CentreY, 300.0F);
    canvas.resize(900, 150);
    redraw();
    EXPECT_EQ(geometry.UnitLength, 10.0F);
    EXPECT_EQ(geometry.CentreX, 450.0F);
}

TEST_F(RedrawGraph, AspectRatioDividesTheDrawing) {
    settings.AspectRatio = 5;
    redraw();
    EXPECT_EQ(geometry.UnitLength, 6.0F);
    settings.AspectRatio = 0.0001F;
    redraw();
    EXPECT_FLOAT_EQ(geometry.UnitLength, 300000.0F);
}

TEST_F(RedrawGraph, AutomaticOriginResetsItsShift) {
    polar.Origin.SetPos(40, 30);
    redraw();
    EXPECT_EQ(polar.Origin.X, 0.0F);
    EXPECT_EQ(polar.Origin.Y, 0.0F);
    EXPECT_EQ(geometry.CentreX, 150.0F);
}

TEST_F(RedrawGraph, OwnOriginShiftsTheCentreWithTheZoomAndUpwards) {
    polar.Origin.Auto = false;
    polar.Origin.SetPos(40, 30);
    redraw();
    EXPECT_EQ(polar.Origin.X, 40.0F);
    EXPECT_EQ(polar.Origin.Y, 30.0F);
    EXPECT_EQ(geometry.OriginOffsetX, 20.0F);
    EXPECT_EQ(geometry.OriginOffsetY, -15.0F);
    EXPECT_EQ(geometry.CentreX, 170.0F);
    EXPECT_EQ(geometry.CentreY, 135.0F);
    EXPECT_EQ(canvas.all<drawn::Disc>().at(0).centre, (Point{170, 135}));
    const drawn::Text east = canvas.textReading("E");
    EXPECT_NEAR(east.at.x, 271.5, 1e-6);
    EXPECT_NEAR(east.at.y, 129, 1e-6);
    const drawn::Text percent = canvas.textReading("5%");
    EXPECT_NEAR(percent.at.x, 180.3563, 1e-4);
    EXPECT_NEAR(percent.at.y, 126.3424, 1e-4);
}

TEST_F(RedrawGraph, WithoutAFileThereIsNoLegendRoseOrLabelButGridAndPercents) {
    tables = ModPolarGraph();
    fillFactoryStyle(tables);
    tables.FrqRoseCount = 1;
    tables.CurrentRose = 1;
    redraw();
    EXPECT_EQ(canvas.kinds(), (Kinds{"Clear", "Disc", "Circle x5", "Line x64", "Text x5", "KeepPicture"}));
    EXPECT_EQ(canvas.texts(), (std::vector<std::string>{"5%", "10%", "15%", "20%", "25%"}));
}

TEST_F(RedrawGraph, HiddenLegendIsNotDrawn) {
    settings.ShowLegend = false;
    redraw();
    EXPECT_TRUE(canvas.all<drawn::FillRectangle>().empty());
    EXPECT_EQ(canvas.texts().front(), "Title");
}

TEST_F(RedrawGraph, HiddenCoordinateSystemHidesTheRoseAndKeepsTitlesLegendAndPercents) {
    settings.ShowCoordinateSystem = false;
    redraw();
    EXPECT_TRUE(canvas.all<drawn::Disc>().empty());
    EXPECT_TRUE(canvas.all<drawn::Circle>().empty());
    EXPECT_TRUE(canvas.all<drawn::Line>().empty());
    EXPECT_TRUE(canvas.all<drawn::Pie>().empty());
    EXPECT_EQ(canvas.all<drawn::FillRectangle>().size(), 7U);
    const std::vector<std::string> texts = canvas.texts();
    EXPECT_EQ(std::vector<std::string>(texts.begin() + 7, texts.end()),
              (std::vector<std::string>{"Title", "Subtitle", "Caption", "5%", "10%", "15%", "20%", "25%"}));
}

TEST_F(RedrawGraph, HiddenLabelsTakeDirectionAndPercentLabelsAway) {
    settings.ShowLabel = false;
    redraw();
    EXPECT_EQ(canvas.texts().size(), 10U);
    EXPECT_EQ(canvas.all<drawn::Pie>().size(), 96U);
}

TEST_F(RedrawGraph, FileWithoutRosesShowsAnEmptyGridAndItsCaptionLarge) {
    tables.FrqRoseCount = 0;
    tables.GraphCaption = "ALL DATA ARE MISSING";
    tables.PlotForeColor = rgb(9, 9, 9);
    redraw();
    EXPECT_TRUE(canvas.all<drawn::Pie>().empty());
    EXPECT_EQ(canvas.all<drawn::Circle>().size(), 5U);
    EXPECT_EQ(canvas.all<drawn::Text>().back(), (drawn::Text{{300 / 3.75, 300 / 1.9},
                                                             "ALL DATA ARE MISSING",
                                                             TextStyle{"Arial", 18, true, false, black}}));
    EXPECT_EQ(canvas.commands.back(), drawn::Command(drawn::KeepPicture{}));
}

TEST_F(RedrawGraph, NoticeOfAFileWithoutRosesIsTheCaptionAsEdited) {
    tables.FrqRoseCount = 0;
    tables.GraphCaption = "edited";
    redraw();
    EXPECT_EQ(canvas.all<drawn::Text>().back().text, "edited");
    EXPECT_EQ(canvas.all<drawn::Text>().back().style.size, 18);
}

TEST_F(RedrawGraph, NoticeKeepsFaceAndSlantOfTheTextBeforeIt) {
    tables.FrqRoseCount = 0;
    tables.PercentFont = {0, "Courier", 7, false, true};
    redraw();
    EXPECT_EQ(canvas.all<drawn::Text>().back().style, (TextStyle{"Courier", 18, true, true, black}));
}

TEST_F(RedrawGraph, NoticeIsBlackAfterATextOfAnotherColour) {
    tables.FrqRoseCount = 0;
    tables.PercentFont.colour = 255;
    tables.PlotForeColor = rgb(1, 2, 3);
    redraw();
    const auto texts = canvas.all<drawn::Text>();
    ASSERT_EQ(texts[texts.size() - 2].style.colour, rgb(255, 0, 0)) << "the text before it";
    EXPECT_EQ(texts.back().style.colour, black);
}

TEST_F(RedrawGraph, NoNoticeBeforeTheFirstLoad) {
    tables = ModPolarGraph();
    fillFactoryStyle(tables);
    tables.FrqRoseCount = 1;
    tables.GraphCaption = "typed";
    redraw();
    for (const drawn::Text& text : canvas.all<drawn::Text>()) EXPECT_LT(text.style.size, 18);
}

TEST_F(RedrawGraph, RadiusOfZeroIsADivisionByZeroOnTheClearedSurface) {
    polar.Radius = 0;
    EXPECT_EQ(numberOfRedrawError(), 11);
    EXPECT_EQ(canvas.kinds(), Kinds{"Clear"});
}

TEST_F(RedrawGraph, RadiusBeyondSixteenBitsOverflows) {
    polar.Radius = 40000;
    EXPECT_EQ(numberOfRedrawError(), 6);
    polar.Radius = 1e30F;
    EXPECT_EQ(numberOfRedrawError(), 6);
}

TEST_F(RedrawGraph, NegativeRadiusHasNoRingsAndNoPercentLabels) {
    polar.Radius = -5;
    redraw();
    EXPECT_TRUE(canvas.all<drawn::Circle>().empty());
    EXPECT_EQ(canvas.texts().back(), "ESE");
}

TEST_F(RedrawGraph, OriginBeyondTheRangeOfASingleOverflows) {
    polar.Origin.Auto = false;
    polar.Origin.X = std::numeric_limits<float>::max();
    settings.Zoom = 200;
    EXPECT_EQ(numberOfRedrawError(), 6);
}

TEST_F(RedrawGraph, RoseOutsideTheTableIsAnErrorOfTheSubscript) {
    tables.CurrentRose = 3;
    EXPECT_EQ(numberOfRedrawError(), 9);
    tables.CurrentRose = -1;
    EXPECT_EQ(numberOfRedrawError(), 9);
}

TEST_F(RedrawGraph, GeometryStaysThatOfTheLastRedraw) {
    redraw();
    canvas.resize(600, 600);
    redraw();
    EXPECT_EQ(geometry.CentreX, 300.0F);
    EXPECT_EQ(geometry.UnitLength, 40.0F);
}

}  // namespace
}  // namespace zg
