#include "platform/LineArt.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/QtCanvas.h"
#include "platform/QtText.h"
#include "tests/support/Pixels.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class LineArtOf : public ::testing::Test {
 protected:
    LineArt art(const std::string& inside, const std::string& viewBox = "0 0 10 10") {
        return LineArt(
            fileName(directory_.write("a.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox=")" +
                                                   viewBox + "\">" + inside + "</svg>")));
    }
    static Colour at(const LineArt& art, int x, int y, int side = 100) {
        QImage page = makePageImage(side, side);
        QPainter painter(&page);
        art.paint(painter, QRectF(0, 0, side, side));
        painter.end();
        return fromQColor(page.pixelColor(x, y));
    }

    TempDirectory directory_;
};

constexpr Colour artRed = rgb(255, 0, 0);

TEST_F(LineArtOf, EveryPictureOfTheProgramIsUnderstood) {
    int pictures = 0;
    for (const char* folder : {"/shell/icons", "/platform/pointers"})
        for (const auto& entry : std::filesystem::directory_iterator(ZG_SOURCE_DIR + std::string(folder)))
            if (entry.path().extension() == ".svg") {
                EXPECT_TRUE(LineArt(fileName(entry.path().string())).isWhole()) << entry.path();
                ++pictures;
            }
    EXPECT_EQ(pictures, 23);
}

TEST_F(LineArtOf, PathsRunInBothCases) {
    for (const char* data :
         {"M2 2L8 2L8 8L2 8Z", "m2 2l6 0 0 6-6 0z", "M2,2H8V8H2z", "M2 2h6v6h-6z", "M2 2 8 2 8 8 2 8z"}) {
        const LineArt square = art("<path fill=\"#ff0000\" d=\"" + std::string(data) + "\"/>");
        EXPECT_TRUE(square.isWhole()) << data;
        EXPECT_EQ(at(square, 50, 50), artRed) << data;
        EXPECT_EQ(at(square, 75, 75), artRed) << data;
        EXPECT_EQ(at(square, 15, 50), white) << data;
        EXPECT_EQ(at(square, 85, 50), white) << data;
    }
}

TEST_F(LineArtOf, ArcsBulgeToTheSideThatTheirFlagsSay) {
    const LineArt upper = art("<path fill=\"#ff0000\" d=\"M2 5a3 3 0 0 1 6 0z\"/>");
    EXPECT_EQ(at(upper, 50, 30), artRed);
    EXPECT_EQ(at(upper, 50, 60), white);
    const LineArt lower = art("<path fill=\"#ff0000\" d=\"M2 5a3 3 0 0 0 6 0z\"/>");
    EXPECT_EQ(at(lower, 50, 30), white);
    EXPECT_EQ(at(lower, 50, 60), artRed);
    // Of a quarter circle the long way round is the rest of the circle.
    const LineArt large = art("<path fill=\"#ff0000\" d=\"M5 2A3 3 0 1 0 8 5L5 5z\"/>");
    EXPECT_EQ(at(large, 35, 50), artRed);
    EXPECT_EQ(at(large, 65, 35), white);
    const LineArt small = art("<path fill=\"#ff0000\" d=\"M5 2A3 3 0 0 1 8 5L5 5z\"/>");
    EXPECT_EQ(at(small, 35, 50), white);
    EXPECT_EQ(at(small, 65, 35), artRed);
}

TEST_F(LineArtOf, GroupsHandTheirLookOn) {
    const LineArt lines =
        art("<g fill=\"none\" stroke=\"#ff0000\" stroke-width=\"2\"><path d=\"M0 5h10\"/>"
            "<circle cx=\"5\" cy=\"5\" r=\"1\" fill=\"#0000ff\" stroke=\"none\"/></g>");
    EXPECT_EQ(at(lines, 20, 50), artRed);
    EXPECT_EQ(at(lines, 20, 58), artRed);
    EXPECT_EQ(at(lines, 20, 65), white);
    EXPECT_EQ(at(lines, 50, 50), rgb(0, 0, 255));
}

TEST_F(LineArtOf, WhatIsNotUnderstoodIsTold) {
    for (const char* inside :
         {"<ellipse rx=\"1\" ry=\"2\"/>", "<path d=\"M1 1Q2 2 3 3\"/>", "<path d=\"M1 1L2\"/>",
          "<path d=\"1 1\"/>", "<path d=\"M1 1zz 5\"/>", "<path d=\"M1 1a1 2 0 0 0 3 3\"/>",
          "<path transform=\"scale(2)\" d=\"M1 1h2\"/>", "<g>"})
        EXPECT_FALSE(art(inside).isWhole()) << inside;
    EXPECT_FALSE(art("", "0 0 0 10").isWhole());
    EXPECT_FALSE(LineArt(QStringLiteral("nowhere.svg")).isWhole());
    EXPECT_TRUE(art("<path d=\"M1 1h2\"/>").isWhole());
}

TEST_F(LineArtOf, AnIconIsSharpAtAnySizeAndGreyWhereDisabled) {
    const std::string path =
        directory_.write("i.svg", R"(<svg viewBox="0 0 4 4"><path d="M0 0h2v4h-2z" fill="#ff0000"/></svg>)");
    const QIcon icon = lineArtIcon(fileName(path));
    for (const int side : {16, 48, 192}) {
        const QImage image = icon.pixmap(QSize(side, side), 1.0).toImage();
        ASSERT_EQ(image.width(), side);
        EXPECT_EQ(image.pixel(side / 2 - 1, side / 2), 0xFFFF0000U) << side;
        EXPECT_EQ(qAlpha(image.pixel(side / 2, side / 2)), 0) << side;
    }
    EXPECT_EQ(icon.pixmap(QSize(24, 24), 2.0).toImage().width(), 48);
    const QImage grey = icon.pixmap(QSize(16, 16), 1.0, QIcon::Disabled).toImage();
    EXPECT_LT(qRed(grey.pixel(2, 8)) - qGreen(grey.pixel(2, 8)), 100);
    EXPECT_GT(qAlpha(grey.pixel(2, 8)), 0);
}

}  // namespace
}  // namespace zg
