// What the rulers learn about the page.

#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

class RulerViews : public PolarGraphFixture {
 protected:
    void SetUp() override {
        graph.layout(500, 400);
        graph.ShowRuler(true);
        graph.Zoom(100);
        graph.OffsetDrawingAreaX(30);
        graph.OffsetDrawingAreaY(45);
    }

    PolarGraph graph{window, host, tables};
};

TEST_F(RulerViews, RunAlongTheirHolders) {
    const RulerView top = graph.rulerView(RulerSide::Top);
    EXPECT_TRUE(top.horizontal);
    EXPECT_EQ(top.length, graph.surfaces().picRulerH.width);
    EXPECT_EQ(top.thickness, rulerThickness);
    const RulerView left = graph.rulerView(RulerSide::Left);
    EXPECT_FALSE(left.horizontal);
    EXPECT_EQ(left.length, graph.surfaces().picRulerV.height);
    EXPECT_EQ(left.thickness, rulerThickness);
    EXPECT_NE(top.length, left.length);
}

TEST_F(RulerViews, BeginThePageWhereItLiesInTheHolder) {
    EXPECT_EQ(graph.rulerView(RulerSide::Top).pageStart, 30 - rulerThickness);
    EXPECT_EQ(graph.rulerView(RulerSide::Left).pageStart, 45 - rulerThickness);
    EXPECT_EQ(graph.rulerView(RulerSide::Top).pageLength, 600);
    EXPECT_EQ(graph.rulerView(RulerSide::Left).pageLength, 600);
}

TEST_F(RulerViews, FollowTheScrolledPage) {
    graph.scrollTo(70, 90);
    const RulerView top = graph.rulerView(RulerSide::Top);
    EXPECT_EQ(top.pageStart, 30 - 70 - rulerThickness);
    EXPECT_EQ(top.centre, top.pageStart + 300);
    const RulerView left = graph.rulerView(RulerSide::Left);
    EXPECT_EQ(left.pageStart, 45 - 90 - rulerThickness);
    EXPECT_EQ(left.centre, left.pageStart + 300);
}

TEST_F(RulerViews, TellTheCentreOfEachAxisOfItsOwn) {
    graph.Polar().Origin.Auto = false;
    graph.Polar().Origin.SetPos(20, 50);
    graph.Refresh();
    const RulerView top = graph.rulerView(RulerSide::Top);
    const RulerView left = graph.rulerView(RulerSide::Left);
    EXPECT_EQ(top.centre, top.pageStart + 320);
    EXPECT_EQ(left.centre, left.pageStart + 250);
}

TEST_F(RulerViews, MarkEveryUnitOfTheGridInTheModeThatIsSet) {
    EXPECT_EQ(graph.rulerView(RulerSide::Top).unit, 0.5F);
    EXPECT_EQ(graph.rulerView(RulerSide::Top).unitLength, 40);
    EXPECT_EQ(graph.rulerView(RulerSide::Top).mode, 1);
    graph.Polar().Unit = 2;
    graph.SetRulerMode(0);
    EXPECT_EQ(graph.rulerView(RulerSide::Top).unit, 2.0F);
    EXPECT_EQ(graph.rulerView(RulerSide::Left).mode, 0);
}

}  // namespace
}  // namespace zg
