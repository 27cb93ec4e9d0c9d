#include <gtest/gtest.h>

#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

class PolarGraphLayout : public PolarGraphFixture {
 protected:
    PolarGraph graph{window, host, tables};

    void SetUp() override {
        graph.layout(500, 400);
        window.forget();
    }
};

TEST_F(PolarGraphLayout, ZoomOfAHundredIsAPageOfSixHundredWhateverTheControlsSize) {
    graph.Zoom(100);
    EXPECT_EQ(graph.surfaces().picGraph, (ChildSurface{0, 0, 600, 600, true}));
    EXPECT_EQ(graph.surfaces().picShadow, (ChildSurface{3, 3, 600, 600, true}));
    EXPECT_EQ(window.pageSizes, (std::vector<std::pair<int, int>>{{600, 600}}));
    EXPECT_EQ(graph.geometry().CentreX, 300.0F);
    graph.layout(100, 90);
    EXPECT_EQ(graph.surfaces().picGraph.width, 600);
}

TEST_F(PolarGraphLayout, ZoomResizesArrangesAndThenPaints) {
    graph.Zoom(100);
    EXPECT_EQ(window.calls, (std::vector<std::string>{"pageResized", "layoutChanged", "rulersChanged",
                                                      "propertyChanged", "pagePainted", "rulersChanged"}));
}

TEST_F(PolarGraphLayout, ZoomBelowOneStillHasAPage) {
    graph.Zoom(-5);
    EXPECT_EQ(graph.Zoom(), -5);
    EXPECT_EQ(graph.surfaces().picGraph, (ChildSurface{0, 0, 1, 1, true}));
    EXPECT_EQ(window.frames(), 1U);
}

TEST_F(PolarGraphLayout, OffsetsMoveThePageWithoutANewSurface) {
    graph.OffsetDrawingAreaX(40);
    graph.OffsetDrawingAreaY(-7);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 40);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), -7);
    EXPECT_EQ(graph.surfaces().picGraph, (ChildSurface{40, -7, 300, 300, true}));
    EXPECT_EQ(graph.surfaces().picShadow, (ChildSurface{43, -4, 300, 300, true}));
    EXPECT_TRUE(window.pageSizes.empty());
    EXPECT_EQ(window.count("layoutChanged"), 2);
}

TEST_F(PolarGraphLayout, ResizingArrangesAndRepaintsTheRulersAlone) {
    graph.ShowRuler(true);
    window.forget();
    graph.layout(700, 600);
    EXPECT_EQ(graph.surfaces().hsScroll.top, 583);
    EXPECT_EQ(graph.surfaces().picHolderRH.width, 663);
    EXPECT_EQ(window.calls, (std::vector<std::string>{"layoutChanged", "rulersChanged"}));
}

TEST_F(PolarGraphLayout, NegativeSizeCountsAsNone) {
    graph.layout(-10, -20);
    EXPECT_EQ(graph.surfaces().hsScroll.width, 0);
    EXPECT_EQ(graph.surfaces().vsScroll.height, 0);
}

TEST_F(PolarGraphLayout, ScrollingShiftsThePageWithinItsRange) {
    graph.Zoom(100);
    window.forget();
    graph.scrollTo(50, 60);
    EXPECT_EQ(graph.surfaces().picGraph.left, -50);
    EXPECT_EQ(graph.surfaces().picGraph.top, -60);
    EXPECT_EQ(window.calls, (std::vector<std::string>{"layoutChanged", "rulersChanged"}));
    graph.scrollTo(100000, -100000);
    EXPECT_EQ(graph.horizontalScroll().value, 600 + 3 - 483);
    EXPECT_EQ(graph.verticalScroll().value, 0);
}

TEST_F(PolarGraphLayout, ResetBringsAScrolledPageBesideTheRulers) {
    graph.ShowRuler(true);
    graph.Zoom(200);
    graph.OffsetDrawingAreaX(-300);
    graph.scrollTo(120, 130);
    window.forget();
    graph.ResetDrawingArea();
    const ChildSurfaces& surfaces = graph.surfaces();
    EXPECT_EQ(graph.horizontalScroll().value, 0);
    EXPECT_EQ(graph.verticalScroll().value, 0);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), surfaces.picRulerJ.width + 5);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), surfaces.picRulerJ.height + 5);
    EXPECT_EQ(surfaces.picGraph.left, surfaces.picHolderRV.left + surfaces.picHolderRV.width + 5);
    EXPECT_EQ(surfaces.picGraph.top, surfaces.picHolderRH.top + surfaces.picHolderRH.height + 5);
    EXPECT_EQ(window.count("propertyChanged"), 1);
    EXPECT_EQ(window.count("layoutChanged"), 1);
}

TEST_F(PolarGraphLayout, RightClickOnTheCornerFlipsTheRulerMode) {
    graph.cornerPressed(rightButton);
    EXPECT_EQ(graph.SetRulerMode(), 0);
    graph.cornerPressed(rightButton);
    EXPECT_EQ(graph.SetRulerMode(), 1);
    graph.SetRulerMode(7);
    window.forget();
    graph.cornerPressed(rightButton);
    EXPECT_EQ(graph.SetRulerMode(), 1);
    EXPECT_EQ(window.calls, (std::vector<std::string>{"rulersChanged", "propertyChanged"}));
}

TEST_F(PolarGraphLayout, OtherButtonsOnTheCornerDoNothing) {
    graph.cornerPressed(4);
    graph.cornerPressed(0);
    EXPECT_TRUE(window.calls.empty());
}

TEST_F(PolarGraphLayout, ShowRulerAndScrollBarsArrangeAtOnce) {
    graph.ShowRuler(true);
    EXPECT_TRUE(graph.surfaces().picHolderRH.visible);
    graph.ScrollBars(0);
    EXPECT_FALSE(graph.surfaces().hsScroll.visible);
    EXPECT_FALSE(graph.surfaces().picScroll.visible);
    EXPECT_EQ(graph.surfaces().picHolderRH.width, 480);
}

TEST_F(PolarGraphLayout, BufferAndAngleLabelStartHidden) {
    EXPECT_FALSE(graph.surfaces().picBuffer.visible);
    EXPECT_FALSE(graph.surfaces().lblTrackAngle.visible);
    EXPECT_FALSE(graph.surfaces().shpSelect.visible);
    EXPECT_FALSE(graph.ActiveSelection());
}

class CentredPage : public PolarGraphLayout {
 protected:
    void SetUp() override {
        PolarGraphLayout::SetUp();
        graph.ScrollBars(0);
        graph.layout(800, 700);
        graph.keepPageCentred();
        window.forget();
    }
    PagePlace place() const { return {graph.OffsetDrawingAreaX(), graph.OffsetDrawingAreaY()}; }
};

TEST_F(CentredPage, FollowsTheSizeOfTheControlWithoutARepaint) {
    EXPECT_EQ(place(), (PagePlace{250, 200}));
    graph.layout(1000, 900);
    EXPECT_EQ(place(), (PagePlace{350, 300}));
    EXPECT_EQ(graph.surfaces().picGraph, (ChildSurface{350, 300, 300, 300, true}));
    EXPECT_EQ(window.calls, (std::vector<std::string>{"layoutChanged", "rulersChanged"}));
}

TEST_F(CentredPage, FollowsItsZoomAndIsPaintedOnce) {
    graph.Zoom(100);
    EXPECT_EQ(place(), (PagePlace{100, 50}));
    EXPECT_EQ(window.frames(), 1U);
    graph.Zoom(500);
    EXPECT_EQ(place(), (PagePlace{5, 5}));
    graph.Zoom(50);
    EXPECT_EQ(place(), (PagePlace{250, 200})) << "also after it was too large";
}

TEST_F(CentredPage, StaysWhereItIsMovedOrReset) {
    graph.OffsetDrawingAreaX(40);
    graph.layout(1000, 900);
    EXPECT_EQ(place(), (PagePlace{40, 200}));
    graph.keepPageCentred();
    graph.ResetDrawingArea();
    graph.layout(800, 700);
    EXPECT_EQ(place(), (PagePlace{25, 25}));
}

TEST_F(CentredPage, OfADragThatIsCancelledIsCentredAgain) {
    graph.SetActiveTool(3);
    graph.mouseDown(1, 0, 10, 10);
    graph.mouseMove(1, 0, 60, 30);
    EXPECT_EQ(place(), (PagePlace{300, 220}));
    EXPECT_TRUE(graph.cancelTool());
    graph.layout(1000, 900);
    EXPECT_EQ(place(), (PagePlace{350, 300}));
}

TEST_F(PolarGraphLayout, WithoutBeingAskedThePageStaysAtItsOffset) {
    graph.layout(2000, 2000);
    graph.Zoom(60);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 0);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), 0);
}

}  // namespace
}  // namespace zg
