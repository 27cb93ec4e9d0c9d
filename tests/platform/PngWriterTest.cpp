#include "platform/PngWriter.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <filesystem>

#include "base/Paths.h"
#include "graph/control/CreatePolar.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/render/RedrawGraph.h"
#include "platform/QtCanvas.h"
#include "tests/support/Pixels.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

QByteArray pngOf(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(writePng(image, buffer));
    return buffer.data();
}

QImage readBack(const QByteArray& bytes) {
    QImage image;
    EXPECT_TRUE(image.loadFromData(bytes, "PNG"));
    return image;
}

/// As many colours as asked, each in one pixel of the first lines; the rest has the first one.
QImage pictureOf(int colours) {
    QImage image = makePageImage(40, 30);
    image.fill(0xFF000000U);
    for (int i = 0; i < colours; ++i)
        image.setPixel(i % 40, i / 40, 0xFF000000U | static_cast<QRgb>(i) * 0x010305U);
    return image;
}

TEST(PngWriter, UpTo256ColoursGoIntoATable) {
    for (const int colours : {1, 2, 255, 256}) {
        const QImage picture = pictureOf(colours);
        const QImage read = readBack(pngOf(picture));
        ASSERT_EQ(read.format(), QImage::Format_Indexed8) << colours;
        EXPECT_EQ(read.colorCount(), colours);
        EXPECT_TRUE(samePicture(read, picture));
    }
}

TEST(PngWriter, MoreColoursStayAsTheyAre) {
    const QImage picture = pictureOf(257);
    const QImage read = readBack(pngOf(picture));
    EXPECT_NE(read.format(), QImage::Format_Indexed8);
    EXPECT_TRUE(samePicture(read, picture));
}

TEST(PngWriter, PartsOfPicturesKeepTheirPixels) {
    const QImage whole = pictureOf(300);  // the widest part has more than 256 of them
    for (const int width : {1, 2, 3, 39}) {
        const QImage part(whole.constScanLine(0), width, 20, whole.bytesPerLine(), QImage::Format_RGB32);
        EXPECT_TRUE(samePicture(readBack(pngOf(part)), part.copy())) << width;
    }
}

TEST(PngWriter, WhatTheUnusedByteOfAPixelHoldsIsNotSeen) {
    QImage picture = pictureOf(3);
    for (int x = 0; x < picture.width(); ++x)
        reinterpret_cast<QRgb*>(picture.scanLine(0))[x] &= x % 2 == 0 ? 0x00FFFFFFU : 0x7FFFFFFFU;
    const QImage read = readBack(pngOf(picture));
    EXPECT_EQ(read.colorCount(), 3);
    EXPECT_TRUE(samePicture(read, pictureOf(3)));
}

TEST(PngWriter, WhatIsSeenThroughStaysSo) {
    QImage picture(5, 4, QImage::Format_ARGB32);
    picture.fill(qRgba(10, 20, 30, 40));
    EXPECT_EQ(readBack(pngOf(picture)).pixel(2, 2), qRgba(10, 20, 30, 40));
}

TEST(PngWriter, KeepsTheSizeOnPaper) {
    const QImage read = readBack(pngOf(makePageImage(20, 20)));
    EXPECT_EQ(read.dotsPerMeterX(), makePageImage(20, 20).dotsPerMeterX());
    EXPECT_EQ(read.dotsPerMeterY(), makePageImage(20, 20).dotsPerMeterY());
}

TEST(PngWriter, NothingGivesNoPicture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_FALSE(writePng(QImage(), buffer));
    EXPECT_TRUE(buffer.data().isEmpty());
}

TEST(PngWriter, ADeviceThatTakesNothingIsTold) {
    QBuffer buffer;
    buffer.open(QIODevice::ReadOnly);
    EXPECT_FALSE(writePng(pictureOf(2), buffer));
}

TEST(PngWriter, EveryRoseOfTheSamplesIsSmallAndKeepsItsPixels) {
    int roses = 0;
    for (const std::string& name : filesMatching(ZG_SOURCE_DIR "/data/samples/*.frq")) {
        ModPolarGraph tables;
        Polar polar = createPolar(tables);
        TestHost host;
        ASSERT_EQ(loadFreqFile(std::string(ZG_SOURCE_DIR "/data/samples/") + name, tables, host),
                  FreqFileOutcome::Loaded);
        for (std::int16_t rose = 1; rose <= tables.FrqRoseCount; ++rose, ++roses) {
            tables.CurrentRose = rose;
            QImage page = makePageImage(600, 600);
            PolarGeometry geometry;
            {
                QtCanvas canvas(page, 600, 600);
                redrawFrame(PlotSettings{}, polar, tables, canvas, geometry);
            }
            const QByteArray bytes = pngOf(page);
            EXPECT_LE(bytes.size(), 80000) << name << " " << rose;
            EXPECT_TRUE(samePicture(readBack(bytes), page));
        }
    }
    EXPECT_GT(roses, 20);
}

}  // namespace
}  // namespace zg
