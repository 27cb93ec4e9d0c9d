#include "graph/control/TrackPosition.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"

namespace zg {
namespace {

const PolarGeometry geometry{0, 0, 150, 160, 20};

struct TrackedDirection {
    float dx;
    float dy;  ///< downwards
    float bearing;
};

class TrackBearing : public ::testing::TestWithParam<TrackedDirection> {};

TEST_P(TrackBearing, IsCountedClockwiseFromNorth) {
    const auto [dx, dy, bearing] = GetParam();
    EXPECT_NEAR(trackPosition(150 + dx, 160 + dy, geometry, 0.5F, {}).bearing, bearing, 1e-4);
}

INSTANTIATE_TEST_SUITE_P(AllRound, TrackBearing,
                         ::testing::Values(TrackedDirection{0, -40, 0}, TrackedDirection{40, -40, 45},
                                           TrackedDirection{40, 0, 90}, TrackedDirection{40, 40, 135},
                                           TrackedDirection{0, 40, 180}, TrackedDirection{-40, 40, 225},
                                           TrackedDirection{-40, 0, 270}, TrackedDirection{-40, -40, 315},
                                           TrackedDirection{0, 0, 180}));

TEST(TrackPosition, GivesPolarUnitsRightAndUpPositive) {
    const TrackedPosition at = trackPosition(190, 100, geometry, 0.5F, {});
    EXPECT_EQ(at.x, 2.0F);
    EXPECT_EQ(at.y, 3.0F);
}

TEST(TrackPosition, RadialValueIsTheDistanceTimesTheUnit) {
    const TrackedPosition at = trackPosition(150 - 60, 160 - 80, geometry, 0.5F, {});
    EXPECT_FLOAT_EQ(at.radial, 2.5F);
    EXPECT_FLOAT_EQ(at.area, 19.634954F);
    EXPECT_FLOAT_EQ(at.circumference, 15.707963F);
    EXPECT_FLOAT_EQ(at.diameter, 5.0F);
}

TEST(TrackPosition, CircularToolMeasuresItsCircle) {
    const TrackedPosition at = trackPosition(190, 100, geometry, 0.5F, 120.0F);
    EXPECT_FLOAT_EQ(at.radial, 1.5F);
    EXPECT_FLOAT_EQ(at.diameter, 3.0F);
    EXPECT_EQ(at.x, 2.0F);
}

TEST(TrackPosition, BeforeAnyRedrawIsADivisionByZero) {
    try {
        trackPosition(1, 1, {}, 0.5F, {});
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number, 11);
    }
}

}  // namespace
}  // namespace zg
