#include "graph/render/Background.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

using Places = std::vector<Rect>;

TEST(Background, StyleZeroLiesAtTheTopLeftInItsOwnSize) {
    EXPECT_EQ(backgroundPlaces(300, 200, 400, 50, 0), (Places{{0, 0, 400, 50}}));
}

TEST(Background, StyleOneIsCentredAndMayReachBeyondTheSurface) {
    EXPECT_EQ(backgroundPlaces(300, 200, 100, 51, 1), (Places{{100, 74.5, 200, 125.5}}));
    EXPECT_EQ(backgroundPlaces(300, 200, 400, 200, 1), (Places{{-50, 0, 350, 200}}));
}

TEST(Background, StyleTwoCoversTheSurface) {
    EXPECT_EQ(backgroundPlaces(300, 200, 7, 9, 2), (Places{{0, 0, 300, 200}}));
}

TEST(Background, TilesGoRowByRowOneMoreThanFits) {
    EXPECT_EQ(backgroundPlaces(100, 100, 100, 100, 3),
              (Places{{0, 0, 100, 100}, {100, 0, 200, 100}, {0, 100, 100, 200}, {100, 100, 200, 200}}));
}

TEST(Background, AnyOtherStyleTiles) {
    EXPECT_EQ(backgroundPlaces(100, 100, 100, 100, 4).size(), 4U);
    EXPECT_EQ(backgroundPlaces(100, 100, 100, 100, -1).size(), 4U);
}

struct TileCount {
    double surface;
    double picture;
    std::size_t copies;
};

class BackgroundTiles : public ::testing::TestWithParam<TileCount> {};

TEST_P(BackgroundTiles, CountIsRoundedWithHalvesToTheEvenNumber) {
    const auto [surface, picture, copies] = GetParam();
    EXPECT_EQ(backgroundPlaces(surface, 10, picture, 1000, 3).size(), copies);
    EXPECT_EQ(backgroundPlaces(10, surface, 1000, picture, 3).size(), copies);
}

// 1.4, 2.4, 2.5, 3.5, 5.69 and 31 copies.
INSTANTIATE_TEST_SUITE_P(Rounding, BackgroundTiles,
                         ::testing::Values(TileCount{300, 750, 1}, TileCount{280, 200, 2},
                                           TileCount{300, 200, 2}, TileCount{300, 120, 4},
                                           TileCount{300, 64, 6}, TileCount{300, 10, 31}));

TEST(Background, TilingAPictureWithoutSizeIsADivisionByZero) {
    for (const auto& [width, height] : {std::pair{0, 5}, std::pair{5, 0}}) {
        try {
            backgroundPlaces(300, 300, width, height, 3);
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number, 11);
        }
    }
}

TEST(Background, CopiesAreBlittedInOrder) {
    RecordingCanvas canvas(50, 50);
    const auto picture = std::make_shared<BlankPicture>(50, 100);
    drawBackground(canvas, picture, 3);
    EXPECT_EQ(canvas.all<drawn::Blit>(), (std::vector<drawn::Blit>{{picture, {0, 0, 50, 100}},
                                                                   {picture, {50, 0, 100, 100}},
                                                                   {picture, {0, 100, 50, 200}},
                                                                   {picture, {50, 100, 100, 200}}}));
}

}  // namespace
}  // namespace zg
