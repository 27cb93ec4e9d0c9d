#include "graph/control/PropertyBag.h"

#include <gtest/gtest.h>

#include "tests/support/RecordingCanvas.h"

namespace zg {
namespace {

TEST(PropertyBag, GivesTheDefaultWhereNothingIsStored) {
    const PropertyBag bag;
    EXPECT_EQ(bag.ReadProperty("Zoom", "50"), "50");
    EXPECT_EQ(bag.ReadPicture("Picture"), nullptr);
}

TEST(PropertyBag, KeepsTheLastTextOfAName) {
    PropertyBag bag;
    bag.WriteProperty("Comment", "one");
    bag.WriteProperty("Comment", "");
    EXPECT_EQ(bag.ReadProperty("Comment", "default"), "");
    EXPECT_EQ(bag.ReadProperty("comment", "default"), "default");
}

TEST(PropertyBag, KeepsPicturesBesideTexts) {
    PropertyBag bag;
    const auto picture = std::make_shared<BlankPicture>(1, 2);
    bag.WritePicture("Picture", picture);
    EXPECT_EQ(bag.ReadPicture("Picture"), picture);
    EXPECT_EQ(bag.ReadProperty("Picture", "none"), "none");
    bag.WritePicture("Picture", nullptr);
    EXPECT_EQ(bag.ReadPicture("Picture"), nullptr);
}

}  // namespace
}  // namespace zg
