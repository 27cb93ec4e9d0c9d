#include "graph/render/SvgCanvas.h"

#include <gtest/gtest.h>

#include <numbers>
#include <regex>

#include "graph/render/RedrawGraph.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

struct Svg : ::testing::Test {
    RecordingCanvas metrics{600, 600};
    SvgCanvas canvas{600, 600, metrics};

    std::string body() {
        const std::string text = canvas.document("T", "D");
        const std::size_t begin = text.find("</desc>\n") + 8;
        return text.substr(begin, text.size() - begin - std::string("</svg>\n").size());
    }
    void drawRose(ModPolarGraph tables) {
        PlotSettings settings;
        Polar polar;
        PolarGeometry geometry;
        redrawFrame(settings, polar, tables, canvas, geometry);
    }
};

std::size_t count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
    return found;
}

TEST_F(Svg, TellsItsSizeTitleAndDescription) {
    EXPECT_EQ(
        canvas.document("A < B", "C & \"D\"", "r7"),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"600\" height=\"600\" viewBox=\"0 0 600 600\" "
        "role=\"img\" aria-labelledby=\"r7-title r7-words\" "
        "font-family=\"Arial,Helvetica,'Liberation Sans',sans-serif\">\n"
        "<title id=\"r7-title\">A &lt; B</title>\n<desc id=\"r7-words\">C &amp; &quot;D&quot;</desc>\n"
        "</svg>\n");
}

TEST_F(Svg, WritesShapes) {
    canvas.fillRectangle({10, 20, 5, 40}, rgb(255, 0, 0));
    canvas.circle({1, 2}, 3, rgb(1, 2, 3));
    canvas.disc({1, 2}, 3, white, scrollBarColour);
    canvas.fillPolygon({{0, 0}, {1.006, 0}, {0, 2}}, black);
    EXPECT_EQ(body(),
              "<rect x=\"5\" y=\"20\" width=\"5\" height=\"20\" fill=\"#f00\"/>\n"
              "<circle cx=\"1\" cy=\"2\" r=\"3\" fill=\"none\" stroke=\"#010203\"/>\n"
              "<circle cx=\"1\" cy=\"2\" r=\"3\" fill=\"#fff\" stroke=\"#484848\"/>\n"
              "<path fill=\"#000\" d=\"M0 0L1.01 0L0 2z\"/>\n");
}

TEST_F(Svg, APieIsAnArcCounterclockwiseFromEast) {
    canvas.describe("class2", "N & S");
    canvas.pie({100, 100}, 50, 0, std::numbers::pi / 2, white, black);
    canvas.pie({100, 100}, 50, std::numbers::pi, std::numbers::pi / 2, white, black);
    EXPECT_EQ(
        body(),
        "<path class=\"class2\" fill=\"#fff\" stroke=\"#000\" d=\"M100 100L150 100A50 50 0 0 0 100 50z\">"
        "<title>N &amp; S</title></path>\n"
        "<path fill=\"#fff\" stroke=\"#000\" d=\"M100 100L50 100A50 50 0 1 0 100 50z\"/>\n");
}

TEST_F(Svg, WhatHasNoRadiusIsLeftOutWithItsWords) {
    canvas.describe("class1", "nothing");
    canvas.pie({1, 1}, 0, 0, 1, white, black);
    canvas.circle({1, 1}, -1, black);
    canvas.disc({1, 1}, 0, white, black);
    canvas.fillRectangle({0, 0, 1, 1}, black);
    EXPECT_EQ(body(), "<rect x=\"0\" y=\"0\" width=\"1\" height=\"1\" fill=\"#000\"/>\n");
}

TEST_F(Svg, LinesOfOneLookAreOnePath) {
    canvas.line({0, 0}, {1, 1}, {black, 1, 0, 0});
    canvas.line({2, 2}, {3, 3}, {black, 1, 0, 0});
    canvas.line({4, 4}, {5, 5}, {black, 2, 1, 3});
    canvas.line({6, 6}, {7, 7}, {black, 2, 5, 0});
    EXPECT_EQ(body(),
              "<path fill=\"none\" stroke=\"#000\" d=\"M0 0L1 1M2 2L3 3\"/>\n"
              "<path fill=\"none\" stroke=\"#000\" stroke-width=\"2\" stroke-dasharray=\"8 4\" "
              "stroke-dashoffset=\"3\" d=\"M4 4L5 5\"/>\n");
}

TEST_F(Svg, TextsStayTextsInTheirFaceAndWithTheirBlanks) {
    canvas.setTextPosition({10, 20});
    canvas.text("a<b", {"Arial", 9, true, false, rgb(255, 0, 0)});
    EXPECT_EQ(canvas.textPosition(), (Point{0, 20 + 13.5}));
    canvas.text("  =  x", {"My Face", 12, false, true, black});
    EXPECT_EQ(
        body(),
        "<text x=\"10\" y=\"30.94\" font-size=\"12\" font-weight=\"bold\" fill=\"#f00\">a&lt;b</text>\n"
        "<text x=\"0\" y=\"48.08\" font-size=\"16\" font-family=\"'My Face',Arial,Helvetica,'Liberation "
        "Sans',sans-serif\" font-style=\"italic\" xml:space=\"preserve\">  =  x</text>\n");
}

TEST_F(Svg, GroupsHaveTheirNamesAndEndStrokes) {
    canvas.beginGroup("spokes");
    canvas.line({0, 0}, {1, 1}, {black, 1, 0, 0});
    canvas.endGroup();
    EXPECT_EQ(body(), "<g class=\"spokes\">\n<path fill=\"none\" stroke=\"#000\" d=\"M0 0L1 1\"/>\n</g>\n");
}

TEST_F(Svg, ClearingForgetsWhatWasThere) {
    canvas.line({0, 0}, {1, 1}, {black, 1, 0, 0});
    canvas.circle({1, 1}, 1, black);
    canvas.clear(white);
    EXPECT_EQ(body(), "<rect x=\"0\" y=\"0\" width=\"600\" height=\"600\" fill=\"#fff\"/>\n");
}

TEST(SvgTexts, LeaveOutWhatXmlCannotHold) {
    EXPECT_EQ(xmlText(std::string("a\x01\x1F\tb\xEF\xBF\xBF"
                                  "c",
                                  9)),
              "a\tbc");
    EXPECT_EQ(xmlText("Montr\xC3\xA9"
                      "al \xEF\xBF\xBD"),
              "Montr\xC3\xA9"
              "al \xEF\xBF\xBD");
}

TEST(SvgNumbers, HaveSixDigitsAtMost) {
    EXPECT_EQ(svgNumber(0), "0");
    EXPECT_EQ(svgNumber(-0.001), "0");
    EXPECT_EQ(svgNumber(299.995), "300");
    EXPECT_EQ(svgNumber(-12.344), "-12.34");
    EXPECT_EQ(svgNumber(9999.984), "9999.98");
    EXPECT_EQ(svgNumber(12345.67), "12345.7");
    EXPECT_EQ(svgNumber(123456.7), "123457");
    EXPECT_EQ(svgNumber(1e9), "999999");
    EXPECT_EQ(svgNumber(-std::numeric_limits<double>::infinity()), "-999999");
    EXPECT_EQ(svgNumber(std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST_F(Svg, AFullRoseIsSmallAndEachBarSaysItsFigures) {
    ModPolarGraph tables = roseTables();
    tables.FrqValidPeriods.redim(1);
    tables.FrqValidPeriods(1) = 8760;
    drawRose(tables);
    const std::string text = canvas.document("T", "D");
    EXPECT_LT(text.size(), 25000U);
    EXPECT_EQ(count(text, "<title>"), 96U);
    EXPECT_NE(text.find("<title>NNW, 3.3 to 5.4 m/s: 3 %, 263 hours</title>"), std::string::npos);
    for (int c = 1; c <= 6; ++c)
        EXPECT_EQ(count(text, "<path class=\"class" + std::to_string(c) + "\""), 16U) << c;
    for (const char* group : {"legend", "titles", "rings", "spokes", "bars", "percents"})
        EXPECT_EQ(count(text, std::string("<g class=\"") + group + "\">"), 1U) << group;
    EXPECT_EQ(count(text, "<g "), count(text, "</g>"));
    EXPECT_EQ(text.find("style="), std::string::npos);
    const std::regex longNumber("[0-9]{7}|[0-9]+\\.[0-9]{3}");
    EXPECT_FALSE(std::regex_search(text.substr(text.find("<g ")), longNumber));
}

TEST_F(Svg, ABarWithoutAShareSaysNothing) {
    ModPolarGraph tables = roseTables();
    tables.FrqFraction(1, 3) = 0;
    drawRose(tables);
    const std::string text = canvas.document("T", "D");
    EXPECT_EQ(text.find("<title>N, 3.3"), std::string::npos);
    EXPECT_NE(text.find("<title>N, 5.4 to 8.5 m/s: 4 %</title>"), std::string::npos) << "no hours are known";
}

}  // namespace
}  // namespace zg
