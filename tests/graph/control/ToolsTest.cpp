// The tools of the page, step by step as the pointer operates them.

#include <cmath>
#include <tuple>

#include "tests/graph/control/PolarGraphFixture.h"

namespace zg {
namespace {

constexpr std::int16_t noButton = 0;

class Tools : public PolarGraphFixture {
 protected:
    void SetUp() override {
        graph.layout(500, 500);
        graph.Zoom(100);
        graph.ShowRuler(true);
        window.forget();
    }

    const ChildSurfaces& at() const { return graph.surfaces(); }
    void drag(float x1, float y1, float x2, float y2) {
        graph.mouseDown(leftButton, 0, x1, y1);
        graph.mouseMove(leftButton, 0, x2, y2);
        graph.mouseUp(leftButton, 0, x2, y2);
    }

    PolarGraph graph{window, host, tables};
};

TEST_F(Tools, AReturnToTheSameToolKeepsTheSelectionAndAnotherEndsIt) {
    graph.SetActiveTool(4);
    drag(10, 20, 30, 50);
    EXPECT_TRUE(graph.ActiveSelection());
    graph.SetActiveTool(4);
    EXPECT_TRUE(graph.ActiveSelection());
    graph.SetActiveTool(0);
    EXPECT_FALSE(graph.ActiveSelection());
    EXPECT_FALSE(at().shpSelect.visible);
}

TEST_F(Tools, TheSelectionIsTheSameInAnyCornerOrder) {
    graph.SetActiveTool(4);
    const ChildSurface expected{10, 20, 21, 31, true};
    drag(10, 20, 30, 50);
    EXPECT_EQ(at().shpSelect, expected);
    drag(30, 50, 10, 20);
    EXPECT_EQ(at().shpSelect, expected);
    drag(30, 20, 10, 50);
    EXPECT_EQ(at().shpSelect, expected);
    drag(10, 50, 30, 20);
    EXPECT_EQ(at().shpSelect, expected);
}

TEST_F(Tools, AClickWithoutMovingLeavesNoSelection) {
    graph.SetActiveTool(4);
    drag(10, 20, 30, 50);
    drag(40, 40, 40, 40);
    EXPECT_FALSE(graph.ActiveSelection());
    EXPECT_EQ(at().shpSelect.width, 1);
    EXPECT_EQ(at().shpSelect.height, 1);
}

TEST_F(Tools, ASelectionOfOneColumnIsOne) {
    graph.SetActiveTool(4);
    drag(40, 40, 40, 44);
    EXPECT_TRUE(graph.ActiveSelection());
    EXPECT_EQ(at().shpSelect, (ChildSurface{40, 40, 1, 5, true}));
}

TEST_F(Tools, PressingTheButtonHidesTheOldSelectionAndShowsTheRubberBand) {
    graph.SetActiveTool(4);
    drag(10, 20, 30, 50);
    graph.mouseDown(leftButton, 0, 5, 5);
    EXPECT_FALSE(at().shpSelect.visible);
    EXPECT_FALSE(at().shpRubber.visible && at().shpRubber.left == 5);
    graph.mouseMove(leftButton, 0, 9, 7);
    EXPECT_EQ(at().shpRubber, (ChildSurface{5, 5, 5, 3, true}));
    graph.mouseUp(leftButton, 0, 9, 7);
    EXPECT_FALSE(at().shpRubber.visible);
    EXPECT_TRUE(window.canvas.commands.empty()) << "the page itself stays as it was drawn";
}

TEST_F(Tools, TheSelectionStaysWithinThePage) {
    graph.SetActiveTool(4);
    drag(-20, -30, 900, 900);
    EXPECT_EQ(at().shpSelect, (ChildSurface{0, 0, 600, 600, true}));
}

TEST_F(Tools, TheRightButtonSelectsNothing) {
    graph.SetActiveTool(4);
    graph.mouseDown(rightButton, 0, 5, 5);
    graph.mouseMove(rightButton, 0, 50, 50);
    graph.mouseUp(rightButton, 0, 50, 50);
    EXPECT_FALSE(graph.ActiveSelection());
}

TEST_F(Tools, EscapeEndsTheDragAndThenDropsTheSelection) {
    graph.SetActiveTool(4);
    EXPECT_FALSE(graph.cancelTool());
    graph.mouseDown(leftButton, 0, 5, 5);
    graph.mouseMove(leftButton, 0, 50, 50);
    EXPECT_TRUE(graph.cancelTool());
    EXPECT_FALSE(at().shpRubber.visible);
    graph.mouseUp(leftButton, 0, 50, 50);
    EXPECT_FALSE(graph.ActiveSelection());
    drag(10, 20, 30, 50);
    EXPECT_TRUE(graph.cancelTool());
    EXPECT_FALSE(graph.ActiveSelection());
}

TEST_F(Tools, SelectAllTakesThePageUnlessSomethingIsSelected) {
    graph.EditSelectAll();
    EXPECT_EQ(at().shpSelect, (ChildSurface{0, 0, 600, 600, true}));
    EXPECT_EQ(graph.SetActiveTool(), 0);
    graph.SetActiveTool(4);
    drag(10, 20, 30, 50);
    graph.EditSelectAll();
    EXPECT_EQ(at().shpSelect, (ChildSurface{10, 20, 21, 31, true}));
}

TEST_F(Tools, TheCircleGoesThroughThePointer) {
    graph.SetActiveTool(1);
    EXPECT_FALSE(at().shpCircle.visible);
    graph.mouseMove(noButton, 0, 330, 340);
    EXPECT_EQ(graph.geometry().CentreX, 300);
    EXPECT_EQ(at().shpCircle, (ChildSurface{250, 250, 100, 100, true}));
    graph.SetActiveTool(0);
    EXPECT_FALSE(at().shpCircle.visible);
}

TEST_F(Tools, TheCirclesWidthGivesTheRadius) {
    float radial = 0;
    graph.events.TrackPosition = [&](float, float, float, float, float, float, float r) { radial = r; };
    graph.mouseMove(noButton, 0, 330, 340);
    const float byDistance = radial;
    graph.SetActiveTool(1);
    graph.mouseMove(noButton, 0, 330, 340);
    EXPECT_FLOAT_EQ(radial, byDistance);
    EXPECT_FLOAT_EQ(radial, 50 * 0.5F / graph.geometry().UnitLength);
}

TEST_F(Tools, TheCrossStartsInTheMiddleAndFollowsThePointer) {
    graph.SetActiveTool(2);
    EXPECT_EQ(at().linCrossH, (ChildSurface{0, 300, 600, 1, true}));
    EXPECT_EQ(at().linCrossV, (ChildSurface{300, 0, 1, 600, true}));
    EXPECT_TRUE(at().linRulerH.visible);
    graph.mouseMove(noButton, 0, 12, 34);
    EXPECT_EQ(at().linCrossH.top, 34);
    EXPECT_EQ(at().linCrossV.left, 12);
    graph.SetActiveTool(3);
    EXPECT_EQ(at().linCrossH, ChildSurface());
    EXPECT_EQ(at().linRulerH, ChildSurface());
}

TEST_F(Tools, TheRulersLinesFollowThePointerWithAnyToolUntilItLeaves) {
    graph.OffsetDrawingAreaX(40);
    graph.OffsetDrawingAreaY(50);
    graph.mouseMove(noButton, 0, 100, 200);
    EXPECT_EQ(at().linRulerH, (ChildSurface{40 + 100 - rulerThickness, 0, 1, rulerThickness, true}));
    EXPECT_EQ(at().linRulerV, (ChildSurface{0, 50 + 200 - rulerThickness, rulerThickness, 1, true}));
    graph.pointerLeft();
    EXPECT_FALSE(at().linRulerH.visible);
    EXPECT_FALSE(at().linRulerV.visible);
}

TEST_F(Tools, PanMovesThePageWithThePointer) {
    graph.SetActiveTool(3);
    graph.OffsetDrawingAreaX(30);
    graph.OffsetDrawingAreaY(40);
    window.forget();
    graph.mouseDown(leftButton, 0, 100, 100);
    graph.mouseMove(leftButton, 0, 107, 96);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 37);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), 36);
    graph.mouseMove(leftButton, 0, 101, 100);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 38);
    EXPECT_EQ(window.frames(), 0U) << "the page is moved, not drawn";
    graph.mouseUp(leftButton, 0, 101, 100);
    graph.mouseMove(noButton, 0, 200, 200);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 38);
}

TEST_F(Tools, EscapePutsAPannedPageBack) {
    graph.SetActiveTool(3);
    graph.OffsetDrawingAreaX(30);
    graph.OffsetDrawingAreaY(40);
    graph.mouseDown(leftButton, 0, 100, 100);
    graph.mouseMove(leftButton, 0, 150, 150);
    EXPECT_TRUE(graph.cancelTool());
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 30);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), 40);
    graph.mouseMove(leftButton, 0, 190, 190);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 30);
}

TEST_F(Tools, ADraggedRulerMovesThePageAlongBothAxes) {
    graph.OffsetDrawingAreaX(30);
    graph.OffsetDrawingAreaY(40);
    graph.rulerPressed(200, 5);
    graph.rulerDragged(210, 2);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 40);
    EXPECT_EQ(graph.OffsetDrawingAreaY(), 37);
    graph.rulerDragged(220, 2);
    EXPECT_EQ(graph.OffsetDrawingAreaX(), 50);
}

TEST_F(Tools, EveryEventGoesToTheHostFirst) {
    graph.SetActiveTool(4);
    bool hiddenBefore = true;
    drag(10, 20, 30, 50);
    graph.events.MouseDown = [&](std::int16_t, std::int16_t, float, float) {
        hiddenBefore = !at().shpSelect.visible;
    };
    graph.mouseDown(leftButton, 0, 5, 5);
    EXPECT_FALSE(hiddenBefore);
}

struct Direction {
    float x;
    float y;
    float bearing;
};

class ToolBearing : public Tools, public ::testing::WithParamInterface<Direction> {};

TEST_P(ToolBearing, IsTheCompassBearing) {
    float bearing = -1;
    graph.events.TrackPosition = [&](float, float, float b, float, float, float, float) { bearing = b; };
    graph.mouseMove(noButton, 0, 300 + GetParam().x, 300 + GetParam().y);
    EXPECT_NEAR(bearing, GetParam().bearing, 1e-4);
}

INSTANTIATE_TEST_SUITE_P(Eight, ToolBearing,
                         ::testing::Values(Direction{0, -80, 0}, Direction{80, -80, 45}, Direction{80, 0, 90},
                                           Direction{80, 80, 135}, Direction{0, 80, 180},
                                           Direction{-80, 80, 225}, Direction{-80, 0, 270},
                                           Direction{-80, -80, 315}, Direction{0, 0, 180}));

struct ToolPointer {
    std::int32_t tool;
    std::int16_t pointer;
};

TEST_F(Tools, EachToolSetsAPointer) {
    for (const ToolPointer& row :
         {ToolPointer{1, 2}, ToolPointer{3, 5}, ToolPointer{2, 2}, ToolPointer{0, 1}, ToolPointer{4, 2}}) {
        graph.SetActiveTool(row.tool);
        EXPECT_EQ(graph.MousePointer(), row.pointer) << row.tool;
    }
}

}  // namespace
}  // namespace zg
