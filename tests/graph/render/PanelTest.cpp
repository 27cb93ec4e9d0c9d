#include "graph/render/Panel.h"

#include <gtest/gtest.h>

#include "base/Encoding.h"
#include "graph/render/PartCanvas.h"
#include "tests/graph/render/RoseTables.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

std::vector<PanelRose> panelOf(int roses) {
    std::vector<PanelRose> all;
    for (int i = 1; i <= roses; ++i) {
        PanelRose rose{roseTables(roses), Polar(), RoseStyle(), {"Rose " + std::to_string(i), "Calm"}};
        rose.tables.CurrentRose = static_cast<std::int16_t>(i);
        all.push_back(rose);
    }
    return all;
}

TEST(PanelLayout, CellsFollowOneAnotherRowByRow) {
    const PanelLayout layout = panelLayout(600, 3, 2, 2, true);
    ASSERT_EQ(layout.cells.size(), 6U);
    EXPECT_EQ(layout.cells[0].top, 30);
    EXPECT_EQ(layout.cells[1].left, 200);
    EXPECT_EQ(layout.cells[2].right, 600);
    EXPECT_EQ(layout.cells[3].left, 0);
    EXPECT_EQ(layout.cells[3].top, layout.cells[0].bottom);
    EXPECT_NEAR(layout.cells[0].bottom - layout.cells[0].top, 200 * 326 / 300.0, 1e-9);
    EXPECT_EQ(layout.legend.top, layout.cells[5].bottom);
    EXPECT_EQ(layout.legend.bottom, layout.height);
    EXPECT_EQ(panelLayout(600, 1, 1, 0, false).cells[0].top, 0);
    EXPECT_EQ(panelLayout(300, 1, 1, 0, true).title.bottom, 15) << "a narrow page shrinks its title";
}

TEST(Panel, HasEachRoseInItsCellWithItsTitleAndOneLegend) {
    RecordingCanvas canvas(600, 900);
    const PanelLayout layout = panelLayout(600, 2, 2, 2, true);
    drawPanel(canvas, layout, panelOf(3), "All of them");
    const auto pies = canvas.all<drawn::Pie>();
    ASSERT_EQ(pies.size(), 3U * 96);
    for (std::size_t i = 0; i < 3; ++i) {
        const Rect& cell = layout.cells[i];
        const drawn::Text title = canvas.textReading("Rose " + std::to_string(i + 1));
        EXPECT_TRUE(title.at.x > cell.left && title.at.x < cell.right && title.at.y > cell.top) << i;
        EXPECT_TRUE(title.style.bold);
        EXPECT_EQ(pies[i * 96].centre.x, (cell.left + cell.right) / 2) << i;
        EXPECT_NEAR(pies[i * 96].centre.y, cell.bottom - 150, 1e-4) << i;
        // The same scale: the second rose's bars are twice those of the first.
        EXPECT_NEAR(pies[i * 96].radius, static_cast<double>(i + 1) * pies[0].radius, 1e-4);
    }
    canvas.textReading("All of them");
    const auto texts = canvas.texts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "  =  10.8+ m/s"), 1);
    EXPECT_EQ(canvas.textReading("  =  10.8+ m/s").at.y > layout.legend.top, true);
    EXPECT_EQ(canvas.all<drawn::Clear>().size(), 1U) << "a cell clears nothing but itself";
}

TEST(Panel, LongTitlesStayInTheirCells) {
    RecordingCanvas canvas(600, 900);
    const PanelLayout layout = panelLayout(600, 2, 1, 2, true);
    std::vector<PanelRose> roses = panelOf(2);
    const double room = layout.cells[0].right - layout.cells[0].left;
    const auto widthOf = [&](const drawn::Text& text) { return canvas.measure(text.text, text.style).width; };
    drawPanel(canvas, layout, roses, "");
    const drawn::Text usual = canvas.textReading("Rose 1");
    const double each = widthOf(usual) / 6;
    roses[0].titles = {std::string(static_cast<std::size_t>(1.3 * room / each), 'i'), "Calm"};
    roses[1].titles = {std::string(400, 'o'), "Calm"};
    canvas.commands.clear();
    drawPanel(canvas, layout, roses, std::string(400, 'u'));
    const drawn::Text smaller = canvas.textReading(roses[0].titles[0]);
    EXPECT_LT(smaller.style.size, usual.style.size) << "a little too wide: whole, in smaller letters";
    EXPECT_GE(smaller.style.size, usual.style.size * 2 / 3 - 1e-9);
    std::vector<drawn::Text> cut;
    for (const drawn::Text& text : canvas.all<drawn::Text>())
        if (text.text.size() > 10 && text.text.find("...") == text.text.size() - 3) cut.push_back(text);
    ASSERT_EQ(cut.size(), 2U) << "far too wide: its beginning";
    const Rect whole{0, 0, 600, 0};
    for (const auto& [text, place] :
         {std::pair{cut[0], whole}, {smaller, layout.cells[0]}, {cut[1], layout.cells[1]}}) {
        EXPECT_GE(text.at.x, place.left) << text.text;
        EXPECT_LE(text.at.x + widthOf(text), place.right) << text.text;
        EXPECT_GT(widthOf(text), (place.right - place.left) * 0.9) << text.text;
    }
}

/// Counts how often texts are measured.
class CountingCanvas : public RecordingCanvas {
 public:
    using RecordingCanvas::RecordingCanvas;
    TextSize measure(const std::string& text, const TextStyle& style) const override {
        ++measures;
        return RecordingCanvas::measure(text, style);
    }
    mutable int measures = 0;
};

TEST(Panel, VeryLongTitlesAreMeasuredAFewTimes) {
    const PanelLayout layout = panelLayout(600, 1, 1, 2, true);
    std::vector<PanelRose> roses = panelOf(1);
    const auto measuresOf = [&](std::size_t length) {
        roses[0].titles = {std::string(length, 'o')};
        CountingCanvas canvas(600, 900);
        drawPanel(canvas, layout, roses, "");
        return canvas.measures;
    };
    EXPECT_LE(measuresOf(20'000) - measuresOf(1), 20);
}

TEST(Panel, TitlesAreCutBetweenLetters) {
    const PanelLayout layout = panelLayout(600, 1, 1, 2, true);
    std::vector<PanelRose> roses = panelOf(1);
    const auto firstTitle = [&](const std::string& title) {
        roses[0].titles = {title};
        RecordingCanvas canvas(600, 900);
        drawPanel(canvas, layout, roses, "");
        for (const std::string& text : canvas.texts())
            if (text.size() > 20 && text.find("...") == text.size() - 3) return text;
        return std::string("none");
    };
    std::string umlauts;
    while (umlauts.size() < 600) umlauts += "\xC3\xB6";
    for (const std::string before : {"", "x"}) {
        const std::string cut = firstTitle(before + umlauts);
        EXPECT_TRUE(isUtf8(cut)) << cut;
        EXPECT_EQ(cut, before + umlauts.substr(0, cut.size() - before.size() - 3) + "...");
    }
    EXPECT_EQ(firstTitle(std::string(300, '\xF6')), firstTitle(umlauts)) << "however the file has it";
}

TEST(Panel, DrawsNoMoreThanItHasCellsFor) {
    RecordingCanvas canvas(600, 900);
    drawPanel(canvas, panelLayout(600, 1, 1, 2, false), panelOf(2), "");
    EXPECT_EQ(canvas.all<drawn::Pie>().size(), 96U);
    canvas.commands.clear();
    drawPanel(canvas, panelLayout(600, 1, 1, 2, false), {}, "");
    EXPECT_EQ(canvas.kinds(), std::vector<std::string>{"Clear"});
}

TEST(PartCanvas, PutsEverythingAtItsPlaceAndSize) {
    RecordingCanvas whole(600, 600);
    PartCanvas part(whole, {100, 200}, 50, 40, 2);
    part.clear(white);
    part.circle({1, 2}, 3, black);
    part.disc({1, 2}, 3, white, black);
    part.line({0, 0}, {1, 1}, {black, 1, 0, 0});
    part.pie({1, 2}, 3, 0.1, 0.2, white, black);
    part.fillPolygon({{1, 1}}, black);
    part.setTextPosition({5, 6});
    part.text("abc", {"Arial", 8, false, false, black});
    const std::vector<drawn::Command> wanted = {
        drawn::FillRectangle{{100, 200, 200, 280}, white},
        drawn::Circle{{102, 204}, 6, black},
        drawn::Disc{{102, 204}, 6, white, black},
        drawn::Line{{100, 200}, {102, 202}, {black, 1, 0, 0}},
        drawn::Pie{{102, 204}, 6, 0.1, 0.2, white, black},
        drawn::FillPolygon{{{102, 202}}, black},
        drawn::Text{{110, 212}, "abc", {"Arial", 16, false, false, black}}};
    EXPECT_EQ(whole.commands, wanted);
    EXPECT_EQ(part.textPosition(), (Point{0, 18}));
    const TextSize size = part.measure("abc", {"Arial", 8, false, false, black});
    EXPECT_EQ(size.width, 18);
    EXPECT_EQ(size.height, 12);
}

}  // namespace
}  // namespace zg
