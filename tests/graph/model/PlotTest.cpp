#include "graph/model/Plot.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"

namespace zg {
namespace {

template <typename Action>
RunTimeError errorOf(Action action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    return {0, "no error"};
}

TEST(GrapInfo, NewOneSweepsAFullTurnAndIsVisible) {
    const GrapInfo graph;
    EXPECT_EQ(graph.Coefficient, "");
    EXPECT_EQ(graph.Equation, "");
    EXPECT_EQ(graph.Delay, 0);
    EXPECT_EQ(graph.StartingAngle, 0.0F);
    EXPECT_EQ(graph.EndingAngle, 360.0F);
    EXPECT_EQ(graph.Step, 1.0F);
    EXPECT_TRUE(graph.Visible);
}

TEST(GrapInfo, NewSeriesHasAPenAndNoMarker) {
    const Series series;
    EXPECT_FALSE(series.AllowMarker);
    EXPECT_TRUE(series.AllowPen);
    EXPECT_TRUE(series.Pen.AllowConVertices);
    EXPECT_FALSE(series.Pen.AllowShading);
    EXPECT_EQ(series.Pen.FillColor, rgb(0, 0, 255));
    EXPECT_EQ(series.Pen.Style, 0);
    EXPECT_EQ(series.Pen.Weight, 1);
}

TEST(GrapInfo, NewMarkerHasItsFactoryValues) {
    const Marker marker;
    EXPECT_EQ(marker.Alignment, 18);
    EXPECT_NE(marker.AutoSize, 0);
    EXPECT_EQ(marker.FillColor, rgb(0, 0, 255));
    EXPECT_EQ(marker.Font.Name, "Wingdings");
    EXPECT_EQ(marker.GetHorizAlign, 2);
    EXPECT_EQ(marker.GetVertAlign, 16);
    EXPECT_EQ(marker.MaskPicturePath, "");
    EXPECT_EQ(marker.PicturePath, "");
    EXPECT_EQ(marker.PictureWidth, 16);
    EXPECT_EQ(marker.PictureHeight, 16);
    EXPECT_EQ(marker.Style, "A");
    EXPECT_TRUE(marker.Transparent);
    EXPECT_FALSE(marker.UsePicture);
}

TEST(Marker, SetPictureSizeSetsBothSizes) {
    Marker marker;
    marker.SetPictureSize(20, 30);
    EXPECT_EQ(marker.PictureWidth, 20);
    EXPECT_EQ(marker.PictureHeight, 30);
}

TEST(Marker, AlignmentIsTheSumOfItsFlags) {
    Marker marker;
    marker.setAlignment(1 + 8);
    EXPECT_EQ(marker.Alignment, 9);
    EXPECT_EQ(marker.GetHorizAlign, 1);
    EXPECT_EQ(marker.GetVertAlign, 8);
}

TEST(Plot, AddStoresTextsAndColoursAndReturnsTheItem) {
    Plot plot;
    GrapInfo& graph = plot.Add("a=2", "a*t", rgb(1, 2, 3), rgb(4, 5, 6));
    EXPECT_EQ(graph.Coefficient, "a=2");
    EXPECT_EQ(graph.Equation, "a*t");
    EXPECT_EQ(graph.Series.Pen.FillColor, rgb(1, 2, 3));
    EXPECT_EQ(graph.Series.Marker.FillColor, rgb(4, 5, 6));
    EXPECT_EQ(plot.Count(), 1);
    EXPECT_EQ(&plot.Item(1), &graph);
}

TEST(Plot, ItemAddedWithAKeyIsFoundByKeyAndByNumber) {
    Plot plot;
    plot.Add("", "1", 0, 0);
    GrapInfo& second = plot.Add("", "2", 0, 0, "Second");
    EXPECT_EQ(&plot.Item(2), &second);
    EXPECT_EQ(&plot.Item("Second"), &second);
    EXPECT_EQ(&plot.Item("second"), &second);
}

TEST(Plot, ItemWithoutAKeyIsNotFoundByAnEmptyOne) {
    Plot plot;
    plot.Add("", "1", 0, 0, "");
    EXPECT_EQ(errorOf([&] { plot.Item(""); }).number, 5);
}

TEST(Plot, NumbersOutsideTheCollectionAreErrors) {
    Plot plot;
    plot.Add("", "1", 0, 0);
    for (const std::int64_t index : {-1, 0, 2}) {
        const RunTimeError error = errorOf([&] { plot.Item(index); });
        EXPECT_EQ(error.number, 9) << index;
        EXPECT_EQ(error.description, "Subscript out of range") << index;
        EXPECT_EQ(errorOf([&] { plot.Remove(index); }).number, 9) << index;
    }
    EXPECT_EQ(plot.Count(), 1);
}

TEST(Plot, UnknownKeyIsAnError) {
    Plot plot;
    EXPECT_EQ(errorOf([&] { plot.Item("missing"); }).number, 5);
    EXPECT_EQ(errorOf([&] { plot.Remove("missing"); }).number, 5);
}

TEST(Plot, TakenKeyIsAnErrorAndAddsNothing) {
    Plot plot;
    plot.Add("", "1", 0, 0, "key");
    const RunTimeError error = errorOf([&] { plot.Add("", "2", 0, 0, "KEY"); });
    EXPECT_EQ(error.number, 457);
    EXPECT_EQ(error.description, "This key is already associated with an element of this collection");
    EXPECT_EQ(plot.Count(), 1);
}

TEST(Plot, RemoveMovesTheFollowingItemsUp) {
    Plot plot;
    plot.Add("", "1", 0, 0, "one");
    plot.Add("", "2", 0, 0, "two");
    plot.Add("", "3", 0, 0, "three");
    plot.Remove(1);
    EXPECT_EQ(plot.Count(), 2);
    EXPECT_EQ(plot.Item(1).Equation, "2");
    plot.Remove("three");
    EXPECT_EQ(plot.Count(), 1);
    EXPECT_EQ(plot.Item("two").Equation, "2");
}

}  // namespace
}  // namespace zg
