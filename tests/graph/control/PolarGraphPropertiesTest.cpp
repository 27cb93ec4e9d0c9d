#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

class PolarGraphProperties : public PolarGraphFixture {
 protected:
    PolarGraph graph{window, host, tables};

    void SetUp() override { window.forget(); }

    void refuseAspectRatio(float value, const std::string& text) {
        graph.AspectRatio(2);
        window.forget();
        host.boxes.clear();
        host.boxAnswers.push_back(BoxAnswer::Ok);
        graph.AspectRatio(value);
        ASSERT_EQ(host.boxes.size(), 1U) << value;
        EXPECT_EQ(host.boxes[0].text, text);
        EXPECT_EQ(host.boxes[0].title, "Polar Graph");
        EXPECT_EQ(host.boxes[0].icon, BoxIcon::Warning);
        EXPECT_EQ(host.boxes[0].buttons, BoxButtons::Ok);
        EXPECT_EQ(graph.AspectRatio(), 2.0F) << value;
        EXPECT_TRUE(window.calls.empty()) << value;
    }
};

TEST_F(PolarGraphProperties, NewControlHasItsDefaults) {
    EXPECT_EQ(graph.AspectRatio(), 1.5F);
    EXPECT_TRUE(graph.AutoUpdate());
    EXPECT_EQ(graph.BackColor(), white);
    EXPECT_EQ(graph.Comment(), "");
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 0);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), 0);
    EXPECT_EQ(graph.MouseIcon(), nullptr);
    EXPECT_EQ(graph.MousePointer(), 0);
    EXPECT_EQ(graph.Picture(), nullptr);
    EXPECT_EQ(graph.PictureStyle(), 0);
    EXPECT_EQ(graph.Polar().Radius, 5.0F);
    EXPECT_EQ(graph.Plot().Count(), 0);
    EXPECT_EQ(graph.ScrollBars(), 3);
    EXPECT_EQ(graph.SetActiveTool(), 0);
    EXPECT_EQ(graph.SetRulerMode(), 1);
    EXPECT_TRUE(graph.ShowCoordinateSystem());
    EXPECT_EQ(graph.ShowGrid(), 1);
    EXPECT_TRUE(graph.ShowLabel());
    EXPECT_TRUE(graph.ShowLegend());
    EXPECT_FALSE(graph.ShowRuler());
    EXPECT_TRUE(graph.StopAni());
    EXPECT_EQ(graph.Zoom(), 50);
}

TEST_F(PolarGraphProperties, AspectRatioNotAboveZeroIsRefused) {
    for (const float value : {0.0F, -0.5F, std::numeric_limits<float>::quiet_NaN()})
        refuseAspectRatio(value, "The AspectRatio value must be greater than 0.");
}

TEST_F(PolarGraphProperties, AspectRatioAboveFiveIsRefused) {
    for (const float value : {5.00001F, 6.0F, std::numeric_limits<float>::infinity()})
        refuseAspectRatio(value, "The AspectRatio value must be less than or equal to 5.");
}

TEST_F(PolarGraphProperties, AspectRatioOfFiveIsTakenAndRepaints) {
    graph.AspectRatio(5);
    EXPECT_EQ(graph.AspectRatio(), 5.0F);
    EXPECT_EQ(window.frames(), 1U);
    EXPECT_EQ(graph.geometry().UnitLength, 6.0F);
}

TEST_F(PolarGraphProperties, AspectRatioKeepsFourDecimals) {
    graph.AspectRatio(1.23456F);
    EXPECT_EQ(graph.AspectRatio(), 1.2346F);
    graph.AspectRatio(0.00011F);
    EXPECT_EQ(graph.AspectRatio(), 0.0001F);
}

TEST_F(PolarGraphProperties, AspectRatioHalfwayBetweenTwoRoundsToTheEvenOne) {
    graph.AspectRatio(0.03125F);
    EXPECT_EQ(graph.AspectRatio(), 0.0312F);
    graph.AspectRatio(0.09375F);
    EXPECT_EQ(graph.AspectRatio(), 0.0938F);
}

TEST_F(PolarGraphProperties, AspectRatioThatRoundsToZeroBecomesTheSmallest) {
    graph.AspectRatio(0.00001F);
    EXPECT_EQ(graph.AspectRatio(), 0.0001F);
    EXPECT_EQ(window.frames(), 1U);
}

TEST_F(PolarGraphProperties, AutoUpdateCannotBeSetAtRunTime) {
    for (const bool value : {true, false}) {
        try {
            graph.AutoUpdate(value);
            FAIL() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number, 387);
            EXPECT_EQ(error.description, "Set not permitted");
        }
        EXPECT_TRUE(graph.AutoUpdate());
    }
}

TEST_F(PolarGraphProperties, PropertiesOfThePageRepaintItWithAllThatFollows) {
    const std::vector<std::function<void()>> setters{
        [&] { graph.AspectRatio(2); },
        [&] { graph.BackColor(rgb(1, 1, 1)); },
        [&] { graph.OffsetDrawingAreaX(7); },
        [&] { graph.OffsetDrawingAreaY(7); },
        [&] { graph.ScrollBars(0); },
        [&] { graph.ShowCoordinateSystem(false); },
        [&] { graph.ShowGrid(2); },
        [&] { graph.ShowLabel(false); },
        [&] { graph.ShowLegend(false); },
        [&] { graph.ShowRuler(true); },
        [&] { graph.Zoom(100); },
    };
    graph.Plot().Add("", "1", 0, 0);
    int curves = 0;
    graph.events.BeforeGraph = [&curves](std::int16_t&) { ++curves; };
    for (std::size_t i = 0; i < setters.size(); ++i) {
        window.forget();
        curves = 0;
        setters[i]();
        EXPECT_EQ(window.frames(), 1U) << i;
        EXPECT_EQ(curves, 1) << i;
        EXPECT_GE(window.count("pagePainted"), 1) << i;
        EXPECT_EQ(window.calls.back(), "rulersChanged") << i;
        EXPECT_EQ(window.count("propertyChanged"), 1) << i;
    }
}

TEST_F(PolarGraphProperties, PropertiesBesideThePageOnlyMarkTheStore) {
    const std::vector<std::function<void()>> setters{
        [&] { graph.Comment("text"); },    [&] { graph.MouseIcon(nullptr); }, [&] { graph.MousePointer(99); },
        [&] { graph.Polar(zg::Polar()); }, [&] { graph.Plot(zg::Plot()); },   [&] { graph.SetActiveTool(4); },
        [&] { graph.SetRulerMode(0); },    [&] { graph.StopAni(false); },     [&] { graph.Picture(nullptr); },
        [&] { graph.PictureStyle(2); },
    };
    for (std::size_t i = 0; i < setters.size(); ++i) {
        window.forget();
        setters[i]();
        EXPECT_EQ(window.frames(), 0U) << i;
        EXPECT_EQ(window.count("propertyChanged"), 1) << i;
    }
}

TEST_F(PolarGraphProperties, PictureRepaintsOnlyWhereThereIsOne) {
    graph.PictureStyle(1);
    EXPECT_EQ(window.frames(), 0U);
    const auto picture = std::make_shared<BlankPicture>(10, 20);
    graph.Picture(picture);
    EXPECT_EQ(window.frames(), 1U);
    EXPECT_EQ(graph.Picture(), picture);
    EXPECT_EQ(window.canvas.all<drawn::Blit>().at(0).target, (Rect{145, 140, 155, 160}));
    graph.PictureStyle(0);
    EXPECT_EQ(window.frames(), 2U);
    graph.Picture(nullptr);
    EXPECT_EQ(window.frames(), 2U);
    graph.Refresh();
    EXPECT_EQ(window.canvas.all<drawn::Blit>().size(), 2U);
}

TEST_F(PolarGraphProperties, BackColourFillsThePage) {
    graph.BackColor(rgb(10, 20, 30));
    EXPECT_EQ(window.canvas.all<drawn::Clear>(), (std::vector<drawn::Clear>{{rgb(10, 20, 30)}}));
}

TEST_F(PolarGraphProperties, MousePointerAndIconReachThePage) {
    const auto icon = std::make_shared<BlankPicture>(32, 32);
    graph.MousePointer(99);
    graph.MouseIcon(icon);
    EXPECT_EQ(window.count("pointerChanged"), 2);
    EXPECT_EQ(graph.MousePointer(), 99);
    EXPECT_EQ(graph.MouseIcon(), icon);
}

TEST_F(PolarGraphProperties, PolarAndPlotCanBeReplaced) {
    zg::Polar polar;
    polar.Radius = 10;
    graph.Polar(polar);
    EXPECT_EQ(graph.Polar().Radius, 10.0F);
    zg::Plot plot;
    plot.Add("", "t", 0, 0, "key");
    graph.Plot(std::move(plot));
    EXPECT_EQ(graph.Plot().Count(), 1);
    EXPECT_EQ(graph.Plot().Item("key").Equation, "t");
}

TEST_F(PolarGraphProperties, RulerModeRepaintsTheRulersAlone) {
    graph.SetRulerMode(0);
    EXPECT_EQ(graph.SetRulerMode(), 0);
    EXPECT_EQ(window.count("rulersChanged"), 1);
    EXPECT_EQ(window.count("pagePainted"), 0);
}

TEST_F(PolarGraphProperties, SameToolAgainChangesNothing) {
    graph.SetActiveTool(2);
    window.forget();
    graph.SetActiveTool(2);
    EXPECT_TRUE(window.calls.empty());
    EXPECT_EQ(graph.SetActiveTool(), 2);
}

TEST_F(PolarGraphProperties, NothingIsDrawnOfTheComment) {
    graph.Comment("a comment");
    graph.Refresh();
    for (const std::string& text : window.canvas.texts()) EXPECT_EQ(text.find("comment"), std::string::npos);
}

TEST_F(PolarGraphProperties, SurviveStoringAndReloading) {
    const auto picture = std::make_shared<BlankPicture>(3, 4);
    const auto icon = std::make_shared<BlankPicture>(32, 32);
    graph.AspectRatio(2.3457F);
    graph.BackColor(rgb(255, 255, 254));
    graph.Comment("One \"two\"//three, \xE9");
    graph.OffsetDrawingAreaX(-32768);
    graph.OffsetDrawingAreaY(123);
    graph.MouseIcon(icon);
    graph.SetActiveTool(4);  // sets a pointer of its own
    graph.MousePointer(99);
    graph.Picture(picture);
    graph.PictureStyle(3);
    graph.ScrollBars(1);
    graph.SetRulerMode(0);
    graph.ShowCoordinateSystem(false);
    graph.ShowGrid(-2000000000);
    graph.ShowLabel(false);
    graph.ShowLegend(false);
    graph.ShowRuler(true);
    graph.StopAni(false);
    graph.Zoom(125);
    PropertyBag bag;
    graph.WriteProperties(bag);
    FakeWindow otherWindow;
    ModPolarGraph otherTables;
    const PolarGraph other(otherWindow, host, otherTables, bag);
    EXPECT_EQ(other.AspectRatio(), 2.3457F);
    EXPECT_EQ(other.BackColor(), rgb(255, 255, 254));
    EXPECT_EQ(other.Comment(), "One \"two\"//three, \xE9");
    EXPECT_EQ(other.OffsetDrawingAreaX(), -32768);
    EXPECT_EQ(other.OffsetDrawingAreaY(), 123);
    EXPECT_EQ(other.MouseIcon(), icon);
    EXPECT_EQ(other.MousePointer(), 99);
    EXPECT_EQ(other.Picture(), picture);
    EXPECT_EQ(other.PictureStyle(), 3);
    EXPECT_EQ(other.ScrollBars(), 1);
    EXPECT_EQ(other.SetActiveTool(), 4);
    EXPECT_EQ(other.SetRulerMode(), 0);
    EXPECT_FALSE(other.ShowCoordinateSystem());
    EXPECT_EQ(other.ShowGrid(), -2000000000);
    EXPECT_FALSE(other.ShowLabel());
    EXPECT_FALSE(other.ShowLegend());
    EXPECT_TRUE(other.ShowRuler());
    EXPECT_FALSE(other.StopAni());
    EXPECT_EQ(other.Zoom(), 125);
    EXPECT_TRUE(other.AutoUpdate());
}

TEST_F(PolarGraphProperties, AreStoredAsTextUnderTheirNames) {
    PropertyBag bag;
    graph.Comment("text");
    graph.WriteProperties(bag);
    EXPECT_EQ(bag.ReadProperty("AspectRatio", "none"), "1.5");
    EXPECT_EQ(bag.ReadProperty("AutoUpdate", "none"), "True");
    EXPECT_EQ(bag.ReadProperty("BackColor", "none"), "16777215");
    EXPECT_EQ(bag.ReadProperty("Comment", "none"), "text");
    EXPECT_EQ(bag.ReadProperty("ShowRuler", "none"), "False");
    EXPECT_EQ(bag.ReadProperty("Zoom", "none"), "50");
}

TEST_F(PolarGraphProperties, ReloadingFromAnEmptyStoreGivesTheDefaults) {
    graph.Zoom(200);
    graph.Comment("text");
    window.forget();
    graph.ReadProperties({});
    EXPECT_EQ(graph.Zoom(), 50);
    EXPECT_EQ(graph.Comment(), "");
    EXPECT_EQ(window.pageSizes, (std::vector<std::pair<int, int>>{{300, 300}}));
    EXPECT_EQ(window.frames(), 1U);
}

TEST_F(PolarGraphProperties, ReloadingKeepsTheSizeOfTheControl) {
    graph.layout(500, 400);
    PropertyBag bag;
    bag.WriteProperty("ShowRuler", "True");
    graph.ReadProperties(bag);
    EXPECT_EQ(graph.surfaces().hsScroll.top, 400 - scrollBarThickness);
    EXPECT_EQ(graph.surfaces().vsScroll.left, 500 - scrollBarThickness);
    EXPECT_EQ(graph.surfaces().picHolderRH.width, 500 - scrollBarThickness - rulerThickness);
}

TEST_F(PolarGraphProperties, StoredValueOfTheWrongKindIsAnErrorAndChangesNothing) {
    PropertyBag bag;
    bag.WriteProperty("AspectRatio", "2");
    bag.WriteProperty("Zoom", "large");
    EXPECT_EQ(errorNumberOf([&] { graph.ReadProperties(bag); }), 13);
    EXPECT_EQ(graph.AspectRatio(), 1.5F);
    bag.WriteProperty("Zoom", "32768");
    EXPECT_EQ(errorNumberOf([&] { graph.ReadProperties(bag); }), 6);
    EXPECT_TRUE(window.calls.empty());
}

}  // namespace
}  // namespace zg
