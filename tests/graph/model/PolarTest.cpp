#include "graph/model/Polar.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

TEST(Polar, NewOneHasItsFactoryValues) {
    const Polar polar;
    EXPECT_EQ(polar.GridColor, 0U);
    EXPECT_EQ(polar.FillColor, 16777215U);
    EXPECT_EQ(polar.LabelColor, 0U);
    EXPECT_EQ(polar.Radius, 5.0F);
    EXPECT_EQ(polar.Unit, 0.5F);
    EXPECT_TRUE(polar.Origin.Auto);
    EXPECT_EQ(polar.Origin.X, 0.0F);
    EXPECT_EQ(polar.Origin.Y, 0.0F);
}

TEST(Polar, MeasuresTheCircleOfRadiusTimesUnit) {
    Polar polar;
    polar.Radius = 4;
    polar.Unit = 0.5F;
    EXPECT_FLOAT_EQ(polar.Area(), 12.566371F);
    EXPECT_FLOAT_EQ(polar.Circumference(), 12.566371F);
    EXPECT_FLOAT_EQ(polar.Diameter(), 4.0F);
    polar.Unit = 1;
    EXPECT_FLOAT_EQ(polar.Area(), 50.265482F);
    EXPECT_FLOAT_EQ(polar.Circumference(), 25.132741F);
    EXPECT_FLOAT_EQ(polar.Diameter(), 8.0F);
}

TEST(Origin, SetPosSetsBothAndLeavesAuto) {
    Origin origin;
    origin.SetPos(3, -4);
    EXPECT_EQ(origin.X, 3.0F);
    EXPECT_EQ(origin.Y, -4.0F);
    EXPECT_TRUE(origin.Auto);
}

}  // namespace
}  // namespace zg
