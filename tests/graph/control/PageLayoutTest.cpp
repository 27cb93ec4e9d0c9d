#include "graph/control/PageLayout.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

TEST(PageSize, IsSixPixelsAPercentAndNeverBelowOne) {
    EXPECT_EQ(pageSize(50), 300);
    EXPECT_EQ(pageSize(100), 600);
    EXPECT_EQ(pageSize(1), 6);
    EXPECT_EQ(pageSize(0), 1);
    EXPECT_EQ(pageSize(-100), 1);
    EXPECT_EQ(pageSize(32767), 196602);
}

struct Arrange : ::testing::Test {
    PageLayout layout{400, 350, 3, true, 300, 25, 30};
    ChildSurfaces surfaces;
    ScrollRange horizontal;
    ScrollRange vertical;

    void run() { arrange(layout, surfaces, horizontal, vertical); }
};

TEST_F(Arrange, BarsRunAlongBottomAndRightWithTheFillerBetween) {
    run();
    EXPECT_EQ(surfaces.hsScroll, (ChildSurface{0, 333, 383, 17, true}));
    EXPECT_EQ(surfaces.vsScroll, (ChildSurface{383, 0, 17, 333, true}));
    EXPECT_EQ(surfaces.picScroll, (ChildSurface{383, 333, 17, 17, true}));
}

TEST_F(Arrange, OneBarTakesTheWholeEdge) {
    layout.ScrollBars = 1;
    run();
    EXPECT_EQ(surfaces.hsScroll, (ChildSurface{0, 333, 400, 17, true}));
    EXPECT_FALSE(surfaces.vsScroll.visible);
    EXPECT_FALSE(surfaces.picScroll.visible);
    layout.ScrollBars = 2;
    run();
    EXPECT_EQ(surfaces.vsScroll, (ChildSurface{383, 0, 17, 350, true}));
    EXPECT_FALSE(surfaces.hsScroll.visible);
    EXPECT_FALSE(surfaces.picScroll.visible);
}

TEST_F(Arrange, WithoutBarsTheFillerIsHiddenToo) {
    for (const std::int32_t value : {0, 4, -1}) {
        layout.ScrollBars = value;
        run();
        EXPECT_FALSE(surfaces.hsScroll.visible) << value;
        EXPECT_FALSE(surfaces.vsScroll.visible) << value;
        EXPECT_FALSE(surfaces.picScroll.visible) << value;
    }
}

TEST_F(Arrange, RulersRunAlongTopAndLeftUpToTheBars) {
    run();
    EXPECT_EQ(surfaces.picRulerJ, (ChildSurface{0, 0, 20, 20, true}));
    EXPECT_EQ(surfaces.picHolderRH, (ChildSurface{20, 0, 363, 20, true}));
    EXPECT_EQ(surfaces.picRulerH, (ChildSurface{0, 0, 363, 20, true}));
    EXPECT_EQ(surfaces.picHolderRV, (ChildSurface{0, 20, 20, 313, true}));
    EXPECT_EQ(surfaces.picRulerV, (ChildSurface{0, 0, 20, 313, true}));
}

TEST_F(Arrange, HiddenRulersHideAllFiveSurfacesAndTheCornerKeepsItsSize) {
    layout.ShowRuler = false;
    run();
    EXPECT_FALSE(surfaces.picRulerJ.visible);
    EXPECT_FALSE(surfaces.picHolderRH.visible);
    EXPECT_FALSE(surfaces.picRulerH.visible);
    EXPECT_FALSE(surfaces.picHolderRV.visible);
    EXPECT_FALSE(surfaces.picRulerV.visible);
    EXPECT_EQ(surfaces.picRulerJ.width, 20);
    EXPECT_EQ(surfaces.picRulerJ.height, 20);
}

TEST_F(Arrange, PageLiesAtItsOffsetWithTheShadowThreePixelsFurther) {
    run();
    EXPECT_EQ(surfaces.picGraph, (ChildSurface{25, 30, 300, 300, true}));
    EXPECT_EQ(surfaces.picShadow, (ChildSurface{28, 33, 300, 300, true}));
}

TEST_F(Arrange, BarsShiftPageAndShadowTogether) {
    layout.page = 600;
    horizontal.value = 100;
    vertical.value = 50;
    run();
    EXPECT_EQ(surfaces.picGraph, (ChildSurface{-75, -20, 600, 600, true}));
    EXPECT_EQ(surfaces.picShadow, (ChildSurface{-72, -17, 600, 600, true}));
}

TEST_F(Arrange, BarsReachFromTheUnscrolledPlaceToTheShadowsEnd) {
    layout.page = 600;
    run();
    EXPECT_EQ(horizontal.minimum, 0);
    EXPECT_EQ(horizontal.maximum, 25 + 600 + 3 - 383);
    EXPECT_EQ(vertical.maximum, 30 + 600 + 3 - 333);
    EXPECT_EQ(horizontal.largeChange, 383);
}

TEST_F(Arrange, PageThatFitsNeedsNoScrolling) {
    layout.page = 100;
    run();
    EXPECT_EQ(horizontal.minimum, 0);
    EXPECT_EQ(horizontal.maximum, 0);
}

TEST_F(Arrange, PageDraggedOutToTheLeftCanBeScrolledBack) {
    layout.OffsetDrawingAreaX = -200;
    horizontal.value = -500;
    run();
    EXPECT_EQ(horizontal.minimum, -200);
    EXPECT_EQ(horizontal.value, -200);
    EXPECT_EQ(surfaces.picGraph.left, 0);
}

TEST_F(Arrange, ValuesStayWithinASmallerRange) {
    layout.page = 600;
    horizontal.value = 240;
    run();
    EXPECT_EQ(horizontal.value, 240);
    layout.page = 400;
    run();
    EXPECT_EQ(horizontal.value, 25 + 400 + 3 - 383);
}

TEST_F(Arrange, TinyControlHasNoNegativeSizes) {
    for (const int size : {0, 1, 10, 19, 36}) {
        layout.width = layout.height = size;
        run();
        for (const ChildSurface& surface :
             {surfaces.hsScroll, surfaces.vsScroll, surfaces.picScroll, surfaces.picHolderRH,
              surfaces.picRulerH, surfaces.picHolderRV, surfaces.picRulerV}) {
            EXPECT_GE(surface.width, 0) << size;
            EXPECT_GE(surface.height, 0) << size;
            EXPECT_GE(surface.left, 0) << size;
            EXPECT_GE(surface.top, 0) << size;
        }
        EXPECT_GE(horizontal.largeChange, 1) << size;
    }
}

TEST_F(Arrange, LeavesTheToolsShapesAlone) {
    surfaces.shpSelect = {1, 2, 3, 4, true};
    surfaces.shpCircle = {5, 6, 7, 8, true};
    run();
    EXPECT_EQ(surfaces.shpSelect, (ChildSurface{1, 2, 3, 4, true}));
    EXPECT_EQ(surfaces.shpCircle, (ChildSurface{5, 6, 7, 8, true}));
}

TEST(CentredPlace, IsInTheMiddleOfWhatRulersAndBarsLeaveFree) {
    const PageLayout layout{1037, 837, 3, true, 300, 0, 0};
    EXPECT_EQ(centredPlace(layout), (PagePlace{20 + (1000 - 300) / 2, 20 + (800 - 300) / 2}));
}

TEST(CentredPlace, WithoutRulersAndBarsIsThatOfTheWholeArea) {
    const PageLayout layout{1000, 800, 0, false, 300, 0, 0};
    EXPECT_EQ(centredPlace(layout), (PagePlace{350, 250}));
}

TEST(CentredPlace, IsBesideTheRulerAlongAnAxisWithoutRoom) {
    PageLayout layout{1037, 300, 3, true, 600, 0, 0};
    EXPECT_EQ(centredPlace(layout), (PagePlace{220, 25}));
    layout.page = 196602;
    EXPECT_EQ(centredPlace(layout), (PagePlace{25, 25}));
}

}  // namespace
}  // namespace zg
