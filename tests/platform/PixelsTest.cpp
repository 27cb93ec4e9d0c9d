// The pixel checks themselves: what a failing one reports and leaves on disk.

#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace zg {
namespace {

const std::string folder = ZG_BINARY_DIR "/pictures/";

class Pixels : public ::testing::Test {
 protected:
    Pixels() { page_.fill(qRgb(255, 0, 0)); }
    /// The contents of a picture left on disk; the file is removed.
    static QImage takenAway(const std::string& path) {
        QImage image(QString::fromStdString(path));
        std::filesystem::remove(path);
        return image;
    }
    QImage page_{20, 20, QImage::Format_RGB32};
};

TEST_F(Pixels, AWrongOneLeavesThePictureAndWhatWasExpected) {
    const auto result = pixelIs(page_, 10, 10, rgb(0, 0, 255));
    ASSERT_FALSE(result);
    const std::string name = folder + "Pixels.AWrongOneLeavesThePictureAndWhatWasExpected";
    const std::string message = result.message();
    EXPECT_NE(message.find("pixel (10, 10)"), std::string::npos) << message;
    EXPECT_NE(message.find("\n  picture:  " + name + ".picture.png"), std::string::npos) << message;
    EXPECT_NE(message.find("\n  expected: " + name + ".expected.png"), std::string::npos) << message;
    EXPECT_EQ(takenAway(name + ".picture.png"), page_);
    const QImage expected = takenAway(name + ".expected.png");
    EXPECT_EQ(expected.pixel(10, 10), qRgb(0, 0, 255));
    EXPECT_EQ(expected.pixel(13, 10), qRgb(0, 0, 255));
    EXPECT_EQ(expected.pixel(14, 10), qRgb(255, 0, 0));
}

TEST_F(Pixels, PicturesThatDifferAreBothLeft) {
    QImage other = page_;
    other.setPixel(3, 4, qRgb(0, 0, 255));
    ASSERT_FALSE(samePicture(page_, other));
    const std::string name = folder + "Pixels.PicturesThatDifferAreBothLeft";
    EXPECT_EQ(takenAway(name + ".picture.png"), page_);
    EXPECT_EQ(takenAway(name + ".expected.png"), other);
}

TEST_F(Pixels, WhatHoldsLeavesNothing) {
    EXPECT_TRUE(pixelIs(page_, 1, 1, rgb(255, 0, 0)));
    EXPECT_TRUE(samePicture(page_, page_.convertToFormat(QImage::Format_ARGB32)));
    EXPECT_TRUE(showsIn(page_, true, "anything"));
    EXPECT_FALSE(std::filesystem::exists(folder + "Pixels.WhatHoldsLeavesNothing.picture.png"));
}

TEST_F(Pixels, ACountThatFailsSaysWhatWasExpected) {
    const auto result = showsIn(page_, false, "more red");
    ASSERT_FALSE(result);
    const std::string path = folder + "Pixels.ACountThatFailsSaysWhatWasExpected.picture.png";
    EXPECT_EQ(result.message(), "expected: more red\n  picture:  " + path);
    EXPECT_EQ(takenAway(path), page_);
}

}  // namespace
}  // namespace zg
