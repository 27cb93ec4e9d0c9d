#include <gtest/gtest.h>

#include "tests/graph/control/PolarGraphFixture.h"
#include "tests/graph/render/RoseTables.h"

namespace zg {
namespace {

/// A file of one rose with 1 percent of the weakest class in every direction.
std::string oneRoseFile() {
    std::string text =
        "WIND.FRQ        2.2             Zephyrgraph FRQ File Format\r\n"
        "1 - Comment lines\r\nMade by hand\r\n5 - Header lines\r\nStation A\r\nSite   survey 2001\r\n"
        "Height: 10.0 m\r\nWind Speed Classes (m/s): 0.5,0.5,1.8,3.3,5.4,8.5,10.8\r\n"
        "2001 1 1 1 0 2001 12 31 23 0\r\n\r\nAnnual\r\nDirection: columns\r\n";
    for (const char* label :
         {"N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE", "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"})
        text += std::string(label) + " : 1.00% 0.00% 0.00% 0.00% 0.00% 0.00%\r\n";
    return text +
           "----\r\nCalm Winds: 4.50%\r\n"
           "Total Periods = 8760; Valid Periods = 8700; Calm Wind Periods = 392\r\n";
}

class PolarGraphMethods : public PolarGraphFixture {
 protected:
    PolarGraph graph{window, host, tables};

    void SetUp() override { window.forget(); }
};

TEST_F(PolarGraphMethods, RefreshPaintsFrameThenCurvesThenRulers) {
    graph.Plot().Add("", "1", 0, 0);
    graph.events.BeforeGraph = [this](std::int16_t&) { window.calls.emplace_back("curve"); };
    graph.Refresh();
    EXPECT_EQ(window.frames(), 1U);
    EXPECT_EQ(window.calls,
              (std::vector<std::string>{"pagePainted", "curve", "pagePainted", "rulersChanged"}));
}

TEST_F(PolarGraphMethods, OnlyVisibleCurvesAreAnnounced) {
    graph.Plot().Add("", "1", 0, 0);
    graph.Plot().Add("", "2", 0, 0).Visible = false;
    graph.Plot().Add("", "3", 0, 0);
    std::vector<int> announced;
    graph.events.BeforeGraph = [&announced](std::int16_t& index) { announced.push_back(index); };
    graph.Refresh();
    EXPECT_EQ(announced, (std::vector<int>{1, 3}));
}

TEST_F(PolarGraphMethods, SuspendedControlPaintsOnceAtTheEnd) {
    graph.suspendUpdates(true);
    graph.BackColor(rgb(1, 2, 3));
    graph.Refresh();
    EXPECT_EQ(window.frames(), 0U);
    EXPECT_EQ(window.count("pagePainted"), 0);
    graph.suspendUpdates(false);
    graph.Refresh();
    EXPECT_EQ(window.frames(), 1U);
    EXPECT_TRUE(graph.AutoUpdate());
}

TEST_F(PolarGraphMethods, ClearGraphLeavesThePersistentPictureAndTheTables) {
    tables = roseTables();
    graph.Plot().Add("", "1", 0, 0);
    graph.BackColor(rgb(5, 6, 7));
    window.forget();
    graph.ClearGraph();
    EXPECT_TRUE(window.canvas.commands.empty());
    EXPECT_EQ(window.calls, (std::vector<std::string>{"restorePicture", "pagePainted"}));
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_EQ(graph.Plot().Count(), 1);
}

TEST_F(PolarGraphMethods, ClearGraphWithoutAPersistentPictureEmptiesThePage) {
    graph.BackColor(rgb(5, 6, 7));
    window.forget();
    window.hasPicture = false;
    graph.ClearGraph();
    EXPECT_EQ(window.canvas.commands, (std::vector<drawn::Command>{drawn::Clear{rgb(5, 6, 7)}}));
}

TEST_F(PolarGraphMethods, AboutBoxHasItsTitle) {
    graph.ShowAbout();
    EXPECT_EQ(window.aboutTitle, "About");
}

TEST_F(PolarGraphMethods, AcceptedFileIsShown) {
    EXPECT_EQ(graph.OpenFreqFile(directory.write("one.frq", oneRoseFile())), 0);
    EXPECT_EQ(graph.lastOpenOutcome(), FreqFileOutcome::Loaded);
    EXPECT_EQ(window.frames(), 1U);
    EXPECT_TRUE(tables.FrqLoaded);
    EXPECT_EQ(window.canvas.all<drawn::Pie>().size(), 96U);
    EXPECT_EQ(window.canvas.texts().front(), "Calm Winds [<0.5 m/s] = 4.50%");
}

TEST_F(PolarGraphMethods, RefusedFileIsNotShownAndStillGivesZero) {
    const std::string path = directory.write("bad.frq", "something else\r\n");
    host.boxAnswers.push_back(BoxAnswer::Ok);
    EXPECT_EQ(graph.OpenFreqFile(path), 0);
    EXPECT_EQ(graph.lastOpenOutcome(), FreqFileOutcome::Refused);
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].text, "The FRQ File " + path + " is not in the correct data format.");
    EXPECT_EQ(host.boxes[0].title, "");
    EXPECT_EQ(window.frames(), 0U);
    EXPECT_TRUE(window.calls.empty());
}

TEST_F(PolarGraphMethods, RefusalLeavesRoseOneOnShow) {
    tables = roseTables(2);
    tables.CurrentRose = 2;
    host.boxAnswers.push_back(BoxAnswer::Ok);
    graph.OpenFreqFile(directory.write("bad.frq", "something else\r\n"));
    EXPECT_EQ(tables.CurrentRose, 1);
    EXPECT_EQ(tables.FrqRoseCount, 2);
}

TEST_F(PolarGraphMethods, FileThatFailsToLoadIsNoLoadedOne) {
    graph.OpenFreqFile(directory.write("one.frq", oneRoseFile()));
    window.forget();
    EXPECT_EQ(errorNumberOf([this] { graph.OpenFreqFile(directory.file("missing.frq")); }), 53);
    EXPECT_EQ(graph.lastOpenOutcome(), FreqFileOutcome::Refused);
    EXPECT_EQ(window.frames(), 0U);
}

TEST_F(PolarGraphMethods, ErrorOfTheGridReachesTheCallerAndThePageShowsWhatItLeft) {
    graph.Polar().Radius = 0;
    EXPECT_EQ(errorNumberOf([this] { graph.Refresh(); }), 11);
    EXPECT_EQ(window.canvas.kinds(), std::vector<std::string>{"Clear"});
    EXPECT_EQ(window.calls, std::vector<std::string>{"pagePainted"});
}

TEST_F(PolarGraphMethods, CaptionOfAFileWithoutRosesShowsOnlyAfterALoad) {
    tables.GraphCaption = "typed";
    graph.Refresh();
    for (const drawn::Text& text : window.canvas.all<drawn::Text>()) EXPECT_NE(text.style.size, 18);
    tables.FrqRoseCount = 0;
    window.forget();
    graph.Refresh();
    EXPECT_EQ(window.canvas.all<drawn::Text>().back().style.size, 18);
}

}  // namespace
}  // namespace zg
