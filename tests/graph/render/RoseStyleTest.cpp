// What a rose can show beyond the window's look, by its recorded operations.

#include "graph/render/RoseStyle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>
#include <set>
#include <sstream>

#include "graph/render/Hatch.h"
#include "graph/render/Legend.h"
#include "graph/render/RedrawGraph.h"
#include "graph/render/RoseWords.h"
#include "graph/render/ShareTable.h"
#include "graph/render/SpeedUnits.h"
#include "graph/render/WindRose.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

struct StyledRose : ::testing::Test {
    PlotSettings settings;
    Polar polar;
    ModPolarGraph tables = roseTables();
    RecordingCanvas canvas{600, 600};
    PolarGeometry geometry;

    void redraw() {
        canvas.commands.clear();
        redrawFrame(settings, polar, tables, canvas, geometry);
    }
    std::vector<drawn::Pie> pies() const { return canvas.all<drawn::Pie>(); }
};

/// The usual look, operation by operation: a change of this file is a change of every picture.
TEST_F(StyledRose, TheUsualLookIsThatOfTheWindow) {
    redraw();
    std::ostringstream found;
    for (const drawn::Command& command : canvas.commands) found << drawn::describe(command) << "\n";
    std::ifstream file(ZG_SOURCE_DIR "/tests/graph/render/data/usual_rose.txt");
    std::ostringstream wanted;
    wanted << file.rdbuf();
    if (found.str() != wanted.str()) std::ofstream(ZG_BINARY_DIR "/usual_rose.txt") << found.str();
    EXPECT_TRUE(found.str() == wanted.str()) << "see usual_rose.txt in the build";
}

TEST_F(StyledRose, RingsOfOtherSharesScaleBarsAndLabels) {
    settings.Style.percentPerRing = 2.5;
    redraw();
    // 21 percent in rings of 2.5 percent, five of which are 200 units.
    EXPECT_NEAR(pies()[0].radius, 21 / 2.5 * 40, 1e-4);
    EXPECT_EQ(canvas.textReading("2.5%").text, "2.5%");
    EXPECT_EQ(canvas.textReading("12.5%").text, "12.5%");
    EXPECT_EQ(canvas.all<drawn::Circle>().size(), 5U);
}

TEST_F(StyledRose, LabelsOfNarrowRingsLeaveOthersOutAndLieOverNone) {
    const auto percents = [&] {
        std::vector<drawn::Text> found;
        for (const drawn::Text& text : canvas.all<drawn::Text>())
            if (text.text.back() == '%') found.push_back(text);
        return found;
    };
    polar.Radius = 20;
    redraw();
    EXPECT_EQ(percents().size(), 21U) << "the usual look labels each ring; one is of the calms";
    settings.Style.percentPerRing = 1;
    redraw();
    std::vector<drawn::Text> labels;
    for (const drawn::Text& text : percents())
        if (text.text.find(' ') == std::string::npos) labels.push_back(text);
    ASSERT_GE(labels.size(), 5U);
    ASSERT_LT(labels.size(), 15U);
    EXPECT_EQ(labels.back().text, "20%") << "the outer ring always has one";
    for (std::size_t i = 1; i + 1 < labels.size(); ++i)
        EXPECT_LE(labels[i].at.x + canvas.measure(labels[i].text, labels[i].style).width, labels[i + 1].at.x)
            << labels[i].text;
}

TEST_F(StyledRose, SectorsMayBeWiderUpToTheirNeighbours) {
    settings.Style.sectorWidth = 22.5;
    redraw();
    const double degree = 6.28318530718 / 360;
    EXPECT_NEAR(pies()[0].start, 348.75 * degree, 1e-9);
    EXPECT_NEAR(pies()[0].end, 11.25 * degree, 1e-9);
    EXPECT_NEAR(pies()[6].start, pies()[0].end, 1e-9) << "the next one begins where this one ends";
}

TEST_F(StyledRose, BarsAndRingsBeginAtTheEdgeOfTheCalmCircle) {
    tables.FrqCalmPercent(1) = "10.00";
    settings.Style.calmCircle = true;
    redraw();
    // Two rings of calms and five rings of bars in 200 units.
    const double ring = 200.0 / 7;
    const auto discs = canvas.all<drawn::Disc>();
    ASSERT_EQ(discs.size(), 3U) << "the page's, the legend's mark and the calms";
    EXPECT_NEAR(discs[1].radius, 200, 1e-4);
    EXPECT_NEAR(discs[2].radius, 2 * ring, 1e-4);
    EXPECT_EQ(discs[2].fill, calmColour);
    EXPECT_EQ(discs[0].fill, calmColour);
    EXPECT_NEAR(pies()[5].radius, (2 + 0.2) * ring, 1e-4);
    EXPECT_NEAR(canvas.all<drawn::Circle>()[0].radius, 3 * ring, 1e-4);
    // The bars are under the calms.
    EXPECT_TRUE(std::holds_alternative<drawn::Disc>(canvas.commands[canvas.commands.size() - 7]));
    EXPECT_NEAR(canvas.textReading("Calm Winds [<0.5 m/s] = 10.00%").at.x,
                legendLayout(600, 600).calmLine.x + 12, 1e-9);
}

TEST_F(StyledRose, NoCalmsNoCircle) {
    tables.FrqCalmPercent(1) = "0.00";
    redraw();
    const auto usual = canvas.commands;
    settings.Style.calmCircle = true;
    redraw();
    EXPECT_EQ(canvas.commands, usual);
}

TEST_F(StyledRose, TheLegendSpeaksOtherUnits) {
    settings.Style.unit = SpeedUnit::KilometresPerHour;
    redraw();
    EXPECT_EQ(canvas.textReading("Calm Winds [<1.8 km/h] = 1.50%").text.substr(0, 4), "Calm");
    canvas.textReading("  =  11.88 to 19.44 km/h");
    settings.Style.unit = SpeedUnit::MilesPerHour;
    redraw();
    canvas.textReading("  =  24.16+ mph");
    settings.Style.unit = SpeedUnit::Knots;
    redraw();
    canvas.textReading("Calm Winds [<0.97 knots] = 1.50%");
    settings.Style.unit = SpeedUnit::MetresPerSecond;
    tables.ClassesFromFile = false;
    redraw();
    canvas.textReading("  =  10.8+ m/s");
}

bool overlaps(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST_F(StyledRose, NumbersTellEachDirectionAndLieOverNoOtherText) {
    for (int row = 1; row <= 16; ++row)
        for (int c = 1; c <= 6; ++c) tables.FrqFraction(row, c) = row % 4 == 0 ? 0.002 : 0.0025 * row;
    redraw();
    const std::size_t usual = canvas.texts().size();
    settings.Style.numbers = true;
    redraw();
    const auto texts = canvas.all<drawn::Text>();
    ASSERT_EQ(texts.size(), usual + 16);
    std::vector<Rect> boxes;
    for (const drawn::Text& text : texts) {
        const TextSize size = canvas.measure(text.text, text.style);
        boxes.push_back({text.at.x, text.at.y, text.at.x + size.width, text.at.y + size.height});
    }
    for (std::size_t i = usual; i < texts.size(); ++i)
        for (std::size_t j = 0; j < boxes.size(); ++j)
            if (j != i && overlaps(boxes[i], boxes[j]))
                ADD_FAILURE() << texts[i].text << " lies over " << texts[j].text;
    canvas.textReading("13.5%");
    const drawn::Text one = canvas.textReading("1.5%");
    EXPECT_NEAR(one.at.x + 12, 300, 40) << "near the end of its short bar";
}

TEST_F(StyledRose, NumbersLeaveTheRestAsItIs) {
    redraw();
    auto usual = canvas.commands;
    settings.Style.numbers = true;
    redraw();
    ASSERT_GT(canvas.commands.size(), usual.size());
    usual.pop_back();  // the kept picture is the last one of both
    EXPECT_TRUE(std::equal(usual.begin(), usual.end(), canvas.commands.begin()));
}

TEST_F(StyledRose, HatchesFollowTheirBarsAndSwatches) {
    settings.ShowGrid = 0;
    settings.Style.hatch = true;
    redraw();
    std::size_t lines = 0;
    double inner = 0;
    double outer = 0;
    for (const drawn::Command& command : canvas.commands) {
        if (const auto* pie = std::get_if<drawn::Pie>(&command)) {
            outer = pie->radius;
            inner = 0;
            continue;
        }
        const auto* line = std::get_if<drawn::Line>(&command);
        if (line == nullptr || outer == 0) continue;
        ++lines;
        for (const Point end : {line->from, line->to})
            EXPECT_LE(std::hypot(end.x - 300, end.y - 300), outer + 1e-6);
        EXPECT_GE(inner, 0);
    }
    EXPECT_GT(lines, 500U);
}

TEST(Hatches, StayWithinTheirPartOfARing) {
    const RingPart ring{{100, 100}, 30, 60, -0.2 + 2 * std::numbers::pi, 0.3};
    for (int c = 1; c <= 6; ++c) {
        const auto strokes = hatchOfRingPart(ring, c);
        EXPECT_GT(strokes.size(), 3U) << c;
        for (const HatchStroke& stroke : strokes)
            for (const double part : {0.0, 0.5, 1.0}) {
                const double x = stroke.from.x + part * (stroke.to.x - stroke.from.x) - 100;
                const double y = 100 - (stroke.from.y + part * (stroke.to.y - stroke.from.y));
                EXPECT_LE(std::hypot(x, y), 60 + 1e-9) << c;
                EXPECT_GE(std::hypot(x, y), 30 - 1e-9) << c;
                EXPECT_GE(std::atan2(y, x), -0.2 - 1e-9) << c;
                EXPECT_LE(std::atan2(y, x), 0.3 + 1e-9) << c;
            }
    }
}

TEST(Hatches, StayWithinTheirRectangleAndDiffer) {
    const Rect swatch{10, 20, 44, 29};
    std::set<std::string> patterns;
    for (int c = 1; c <= 6; ++c) {
        std::ostringstream pattern;
        for (const HatchStroke& stroke : hatchOfRectangle(swatch, c)) {
            for (const Point end : {stroke.from, stroke.to}) {
                EXPECT_TRUE(end.x >= 10 - 1e-9 && end.x <= 44 + 1e-9 && end.y >= 20 - 1e-9 &&
                            end.y <= 29 + 1e-9)
                    << c;
                pattern << end.x << " " << end.y << ";";
            }
        }
        patterns.insert(pattern.str());
    }
    EXPECT_EQ(patterns.size(), 6U);
}

TEST(Hatches, OfNoOrEndlessSizeAreNone) {
    EXPECT_TRUE(hatchOfRingPart({{0, 0}, 5, 5, 0, 1}, 3).empty());
    EXPECT_TRUE(hatchOfRingPart({{0, 0}, 0, 1e300, 0, 1}, 3).empty());
    EXPECT_TRUE(hatchOfRectangle({0, 0, 1e300, 1}, 3).empty());
}

TEST(Hatches, AreSeenOnTheirColour) {
    EXPECT_EQ(hatchColour(white), black);
    EXPECT_EQ(hatchColour(rgb(255, 255, 0)), black);
    EXPECT_EQ(hatchColour(black), white);
    EXPECT_EQ(hatchColour(rgb(0, 0, 255)), white);
}

TEST(ShareTables, SumUpByDirectionAndClass) {
    ModPolarGraph tables = roseTables();
    tables.FrqValidPeriods.redim(1);
    tables.FrqValidPeriods(1) = 1000;
    tables.FrqTotalPeriods.redim(1);
    tables.FrqTotalPeriods(1) = 1200;
    const ShareTable table = shareTable(tables, speedLimits(tables, SpeedUnit::MetresPerSecond));
    EXPECT_EQ(table.heading, (std::vector<std::string>{"From", "0.5-1.8", "1.8-3.3", "3.3-5.4", "5.4-8.5",
                                                       "8.5-10.8", "10.8+", "All", "Hours"}));
    ASSERT_EQ(table.rows.size(), 18U);
    EXPECT_EQ(table.rows[15], (std::vector<std::string>{"NNW", "1.00", "2.00", "3.00", "4.00", "5.00", "6.00",
                                                        "21.00", "210"}));
    EXPECT_EQ(table.rows[16], (std::vector<std::string>{"All %", "16.00", "32.00", "48.00", "64.00", "80.00",
                                                        "96.00", "336.00"}));
    EXPECT_EQ(table.rows[17],
              (std::vector<std::string>{"Hours", "160", "320", "480", "640", "800", "960", "3360"}));
    EXPECT_EQ(table.lines[0], "Calm: 1.5 %, 15 hours");
    EXPECT_EQ(table.lines[1], "Valid hours: 1000 of 1200");
}

TEST(ShareTables, NameTheMeanSpeedByWhatItIsMadeOf) {
    ModPolarGraph tables = roseTables();
    tables.FrqFraction = FractionTable();
    tables.FrqFraction.redim(33);
    tables.FrqFraction(1, 1) = 0.5;  // 0.5 to 1.8 m/s
    tables.FrqFraction(9, 6) = 0.3;  // from 10.8 m/s, the class before is 2.3 m/s wide
    tables.FrqCalmPercent(1) = "20.00";
    EXPECT_NEAR(meanByClassMiddle(tables), 0.5 * 1.15 + 0.3 * 11.95, 1e-12);
    const ShareTable metres = shareTable(tables, speedLimits(tables, SpeedUnit::MetresPerSecond));
    ASSERT_EQ(metres.lines.size(), 2U) << "no counts, no valid hours";
    EXPECT_EQ(metres.lines[1], "Mean speed by class middles: 4.16 m/s");
    const ShareTable knots = shareTable(tables, speedLimits(tables, SpeedUnit::Knots));
    EXPECT_EQ(knots.lines[1], "Mean speed by class middles: 8.09 knots");
    EXPECT_EQ(metres.rows[0][8], "");
}

TEST(FixedTexts, HaveTheirDecimalsAlways) {
    EXPECT_EQ(fixedText(0, 2), "0.00");
    EXPECT_EQ(fixedText(0.049, 1), "0.0");
    EXPECT_EQ(fixedText(-0.001, 2), "0.00");
    EXPECT_EQ(fixedText(-1.005, 1), "-1.0");
    EXPECT_EQ(fixedText(12.345, 0), "12");
    EXPECT_EQ(fixedText(99.995, 1), "100.0");
}

TEST(RoseWords, TellCalmsDirectionsAndClasses) {
    ModPolarGraph tables = roseTables();
    tables.FrqFraction(1, 6) = 0.1;
    const std::string words = roseWords(tables, speedLimits(tables, SpeedUnit::AsChosen));
    EXPECT_EQ(words.find("Wind rose of 16 directions, from which the wind blows, and 6 speed classes. "
                         "Calm, below 0.5 m/s: 1.50 %. Most frequent: N 25 %, NNE 21 %, NE 21 %. By speed: "
                         "0.5 to 1.8 m/s 16 %, "),
              0U)
        << words;
}

}  // namespace
}  // namespace zg
