#include "export/StyleRequest.h"

#include <gtest/gtest.h>

#include "tests/graph/render/RoseTables.h"

namespace zg {
namespace {

std::string wrongOf(const StyleRequest& request) {
    try {
        lookOf(request);
    } catch (const WrongStyle& wrong) {
        return wrong.text;
    }
    return {};
}

TEST(RingScales, HaveThreeToSevenTidyRings) {
    const std::vector<std::pair<double, RingScale>> all = {{25, {5, 5}}, {40, {4, 10}},  {15, {3, 5}},
                                                           {10, {5, 2}}, {100, {5, 20}}, {60, {3, 20}},
                                                           {12, {6, 2}}, {1, {5, 0.2}},  {0.1, {5, 0.02}}};
    for (const auto& [percent, wanted] : all) {
        const RingScale found = ringsTo(percent, 0);
        EXPECT_FLOAT_EQ(found.rings, wanted.rings) << percent;
        EXPECT_EQ(found.percentPerRing, wanted.percentPerRing) << percent;
    }
    EXPECT_EQ(ringsTo(30, 4).percentPerRing, 7.5);
    EXPECT_EQ(ringsTo(30, 4).rings, 4);
}

TEST(RingScales, AutoIsTheSmallestStepThatHoldsTheLongestBar) {
    EXPECT_EQ(ringsAround(25, 0).percentPerRing, 5);
    EXPECT_EQ(ringsAround(25.1, 0).percentPerRing, 6);
    EXPECT_EQ(ringsAround(4.9, 0).percentPerRing, 1);
    EXPECT_EQ(ringsAround(0, 0).percentPerRing, 0.1);
    EXPECT_EQ(ringsAround(12, 3).percentPerRing, 4);
    EXPECT_EQ(ringsAround(12, 3).rings, 3);
    EXPECT_EQ(ringsAround(99, 1).percentPerRing, 100);
    EXPECT_EQ(ringsAround(1e9, 1).percentPerRing, 100);
}

TEST(RingScales, TheLongestBarIsTheSumOfItsClasses) {
    ModPolarGraph tables = roseTables(2);
    EXPECT_DOUBLE_EQ(longestBar(tables, 1), 21);
    tables.FrqFraction(17 + 5, 2) = 0.5;
    EXPECT_DOUBLE_EQ(longestBar(tables, 2), 88);
    EXPECT_DOUBLE_EQ(longestBar(tables, 1), 21);
}

TEST(StyleRequests, LeftAsTheyAreChangeNothing) {
    const PictureLook look = lookOf({});
    EXPECT_FALSE(look.palette.has_value());
    EXPECT_EQ(look.scale.rings, Polar().Radius);
    EXPECT_EQ(look.rose.percentPerRing, RoseStyle().percentPerRing);
    EXPECT_FALSE(look.scalesItself);
    EXPECT_FALSE(StyleRequest().needsAllRoses());
}

TEST(StyleRequests, BecomeALook) {
    StyleRequest request;
    request.palette = "greys";
    request.radius = "40";
    request.rings = 8;
    request.rose.hatch = true;
    const PictureLook look = lookOf(request);
    EXPECT_EQ(look.palette, paletteNamed("greys"));
    EXPECT_EQ(look.scale.rings, 8);
    EXPECT_EQ(look.rose.percentPerRing, 5);
    EXPECT_TRUE(look.rose.hatch);
}

TEST(StyleRequests, OnlyRingsDivideTheUsualRadius) {
    StyleRequest request;
    request.rings = 2;
    EXPECT_EQ(lookOf(request).rose.percentPerRing, 12.5);
}

TEST(StyleRequests, EachRoseScalesItselfUnderAuto) {
    StyleRequest request;
    request.radius = "auto";
    const ModPolarGraph tables = roseTables(2);
    const PictureLook look = lookOf(request);
    EXPECT_EQ(lookFor(look, tables, 1).rose.percentPerRing, 5);
    EXPECT_EQ(lookFor(look, tables, 2).rose.percentPerRing, 10);
}

TEST(StyleRequests, WithoutSenseAreTold) {
    StyleRequest request;
    request.radius = "x";
    EXPECT_EQ(wrongOf(request), "--radius: x is neither a number nor auto");
    request.radius = "101";
    EXPECT_EQ(wrongOf(request), "--radius: 101 is not within 0.1 to 100 percent");
    request.radius = "0";
    EXPECT_EQ(wrongOf(request), "--radius: 0 is not within 0.1 to 100 percent");
    request.radius = "30";
    request.sameScale = true;
    EXPECT_EQ(wrongOf(request), "--same-scale: a radius of 30 percent is the same for all pictures as it is");
    request.radius = "auto";
    EXPECT_EQ(wrongOf(request), "");
    request.besideTable = true;
    EXPECT_EQ(wrongOf(request), "");
    request.panel = "2x2";
    EXPECT_EQ(wrongOf(request), "--beside-table: a page of several roses (--panel) has no room for tables");
    request.besideTable = false;
    request.palette = "rainbow";
    EXPECT_EQ(wrongOf(request),
              "--palette: rainbow is neither a file nor one of factory, viridis, cividis, okabe-ito, greys");
}

TEST(PanelShapes, AreAsAskedOrNearlySquare) {
    const auto shape = [](const char* asked, int roses) {
        const PanelShape found = panelShape(asked, roses);
        return std::to_string(found.columns) + "x" + std::to_string(found.rows);
    };
    EXPECT_EQ(shape("3x2", 1), "3x2");
    EXPECT_EQ(shape("20x1", 100), "20x1");
    EXPECT_EQ(shape("auto", 1), "1x1");
    EXPECT_EQ(shape("auto", 2), "2x1");
    EXPECT_EQ(shape("auto", 5), "3x2");
    EXPECT_EQ(shape("auto", 9), "3x3");
    EXPECT_EQ(shape("auto", 10), "4x3");
    EXPECT_EQ(shape("auto", 5000), "20x20");
    for (const char* wrong :
         {"", "3", "x", "3x", "x3", "0x3", "21x1", "3x2x1", "3 x 2", "-1x2", "+3x2", "3,0x2", "a"})
        EXPECT_THROW(panelShape(wrong, 5), WrongStyle) << wrong;
}

}  // namespace
}  // namespace zg
