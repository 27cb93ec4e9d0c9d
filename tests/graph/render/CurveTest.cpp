#include "graph/render/Curve.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

constexpr Point segmentStart{10, 20};
constexpr Point segmentEnd{30, 50};

TEST(Segments, HaveThePensColourWidthAndStyle) {
    RecordingCanvas canvas;
    Pen pen;
    pen.FillColor = rgb(1, 2, 3);
    pen.Weight = 4;
    pen.Style = 2;
    paintSegment(canvas, segmentStart, segmentEnd, pen, 7.5);
    pen.Style = 0;
    paintSegment(canvas, segmentStart, segmentEnd, pen, 7.5);
    EXPECT_EQ(canvas.commands,
              (std::vector<drawn::Command>{drawn::Line{segmentStart, segmentEnd, {rgb(1, 2, 3), 4, 2, 7.5}},
                                           drawn::Line{segmentStart, segmentEnd, {rgb(1, 2, 3), 4, 0, 0}}}))
        << "a solid line has no dashes to run through";
}

TEST(Shading, FillsTheTriangleAndTheEdgeThatNeighboursShare) {
    RecordingCanvas canvas;
    Pen pen;
    pen.FillColor = rgb(1, 2, 3);
    pen.Weight = 4;
    pen.Style = 2;
    paintShading(canvas, {5, 6}, segmentStart, segmentEnd, pen);
    EXPECT_EQ(canvas.commands, (std::vector<drawn::Command>{
                                   drawn::FillPolygon{{{5, 6}, segmentStart, segmentEnd}, rgb(1, 2, 3)},
                                   drawn::Line{{5, 6}, segmentStart, {rgb(1, 2, 3), 1, 0, 0}}}));
}

TEST(CurvePoints, ThatChangeNoPixelWaitForTheNextOne) {
    RecordingCanvas canvas;
    Series series;
    CurvePainter painter(series, {}, PolarGeometry());
    for (const Point point : {Point{0, 0}, Point{10, 0}, Point{10.05, 0}}) painter.paint(canvas, point);
    EXPECT_EQ(canvas.all<drawn::Line>().size(), 1U);
    painter.finish(canvas);
    ASSERT_EQ(canvas.all<drawn::Line>().size(), 2U);
    EXPECT_EQ(canvas.all<drawn::Line>()[1].from, (Point{10, 0}));
    EXPECT_EQ(canvas.all<drawn::Line>()[1].to, (Point{10.05, 0}));
    painter.finish(canvas);
    EXPECT_EQ(canvas.all<drawn::Line>().size(), 2U) << "nothing waits any more";
}

TEST(MarkerCorners, FollowBothFlagsAndUnknownOnesAreTheFirst) {
    const TextSize size{10, 24};
    for (const std::int32_t horizontal : {0, 1, 2, 7})
        for (const std::int32_t vertical : {4, 8, 16, 7}) {
            const double x = horizontal == 1 ? 100 : horizontal == 2 ? 95 : 90;
            const double y = vertical == 8 ? 200 : vertical == 16 ? 188 : 176;
            EXPECT_EQ(alignedCorner({100, 200}, size, horizontal, vertical), (Point{x, y}))
                << horizontal << ' ' << vertical;
        }
}

struct Markers : ::testing::Test {
    Markers() {
        marker.GetHorizAlign = 1;
        marker.GetVertAlign = 16;
        marker.PictureWidth = 20;
        marker.PictureHeight = 10;
        marker.FillColor = rgb(1, 2, 3);
        marker.Font = {"Courier", 16, true, true};
    }

    std::vector<drawn::Command> paint() {
        canvas.commands.clear();
        paintMarker(canvas, {100, 200}, marker, pictures);
        return canvas.commands;
    }

    RecordingCanvas canvas;
    Marker marker;
    MarkerPictures pictures{std::make_shared<BlankPicture>(3, 4), std::make_shared<BlankPicture>(5, 6)};
};

TEST_F(Markers, AreACharacterInTheirFontAlignedByItsSize) {
    marker.UsePicture = false;
    marker.Style = "ab";
    const TextStyle style{"Courier", 16, true, true, rgb(1, 2, 3)};
    EXPECT_EQ(paint(), (std::vector<drawn::Command>{drawn::Text{{100, 200 - 12}, "ab", style}}));
    marker.GetHorizAlign = 2;
    EXPECT_EQ(paint(), (std::vector<drawn::Command>{drawn::Text{{100 - 12, 200 - 12}, "ab", style}}));
}

TEST_F(Markers, AreAPictureStretchedToItsSize) {
    marker.UsePicture = true;
    marker.Transparent = false;
    EXPECT_EQ(paint(), (std::vector<drawn::Command>{drawn::Blit{pictures.picture, {100, 195, 120, 205}}}));
    marker.GetHorizAlign = 0;
    marker.GetVertAlign = 4;
    EXPECT_EQ(paint(), (std::vector<drawn::Command>{drawn::Blit{pictures.picture, {80, 190, 100, 200}}}));
}

TEST_F(Markers, ThatAreTransparentWantAMask) {
    marker.UsePicture = true;
    marker.Transparent = true;
    EXPECT_EQ(paint(), (std::vector<drawn::Command>{
                           drawn::BlitMasked{pictures.picture, pictures.mask, {100, 195, 120, 205}}}));
    pictures.mask = nullptr;
    EXPECT_TRUE(paint().empty());
}

TEST_F(Markers, WithoutTheirPictureLeaveNothing) {
    marker.UsePicture = true;
    pictures.picture = nullptr;
    for (const bool transparent : {false, true}) {
        marker.Transparent = transparent;
        EXPECT_TRUE(paint().empty());
    }
}

}  // namespace
}  // namespace zg
