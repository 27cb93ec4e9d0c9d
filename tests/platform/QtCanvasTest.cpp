#include "platform/QtCanvas.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QTemporaryDir>
#include <cmath>
#include <numbers>

#include "platform/QtPicture.h"
#include "platform/QtText.h"
#include "tests/support/Pixels.h"

namespace zg {
namespace {

constexpr Colour red = rgb(255, 0, 0);
constexpr Colour blue = rgb(0, 0, 255);

Colour pixel(const QImage& image, int x, int y) { return fromQColor(image.pixelColor(x, y)); }

int inkIn(const QImage& image, const QRect& area) {
    int ink = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y) != QColor(Qt::white)) ++ink;
    return ink;
}

TEST(QtCanvas, ClearFillsTheWholePage) {
    QImage page = makePageImage(40, 30);
    QtCanvas(page, 40, 30).clear(rgb(1, 2, 3));
    EXPECT_TRUE(pixelIs(page, 0, 0, rgb(1, 2, 3)));
    EXPECT_TRUE(pixelIs(page, 39, 29, rgb(1, 2, 3)));
}

TEST(QtCanvas, PieRunsCounterclockwiseFromEastWithUpPositive) {
    QImage page = makePageImage(200, 200);
    QtCanvas canvas(page, 200, 200);
    canvas.pie({100, 100}, 80, std::numbers::pi / 4, 3 * std::numbers::pi / 4, red, black);
    EXPECT_TRUE(pixelIs(page, 100, 60, red)) << "north";
    EXPECT_TRUE(pixelIs(page, 140, 100, white)) << "east";
    EXPECT_TRUE(pixelIs(page, 100, 140, white)) << "south";
}

TEST(QtCanvas, PieAcrossEastIsOnePieceAndNotTheComplement) {
    QImage page = makePageImage(200, 200);
    QtCanvas canvas(page, 200, 200);
    const double degree = std::numbers::pi / 180;
    canvas.pie({100, 100}, 80, 356.25 * degree, 3.75 * degree, blue, black);
    EXPECT_TRUE(pixelIs(page, 160, 100, blue));
    EXPECT_TRUE(pixelIs(page, 100, 60, white));
    EXPECT_TRUE(pixelIs(page, 40, 100, white));
}

TEST(QtCanvas, PieWithoutRadiusLeavesNoMark) {
    QImage page = makePageImage(50, 50);
    QtCanvas(page, 50, 50).pie({25, 25}, 0, 0, 1, red, black);
    EXPECT_EQ(inkIn(page, page.rect()), 0);
}

TEST(QtCanvas, DiscIsFilledAndCircleIsHollow) {
    QImage page = makePageImage(100, 100);
    QtCanvas canvas(page, 100, 100);
    canvas.disc({30, 50}, 20, red, red);
    canvas.circle({75, 50}, 20, blue);
    EXPECT_TRUE(pixelIs(page, 30, 50, red));
    EXPECT_TRUE(pixelIs(page, 30, 33, red));
    EXPECT_TRUE(pixelIs(page, 75, 50, white));
    EXPECT_GT(inkIn(page, QRect(94, 49, 3, 3)), 0);
}

TEST(QtCanvas, RectangleHoldsItsEdgePixels) {
    QImage page = makePageImage(20, 20);
    QtCanvas(page, 20, 20).fillRectangle({5, 6, 15, 12}, red);
    EXPECT_TRUE(pixelIs(page, 5, 6, red));
    EXPECT_TRUE(pixelIs(page, 14, 11, red));
    EXPECT_TRUE(pixelIs(page, 4, 6, white));
    EXPECT_TRUE(pixelIs(page, 15, 12, white));
}

TEST(QtCanvas, LineHasItsWidth) {
    QImage page = makePageImage(40, 40);
    QtCanvas canvas(page, 40, 40);
    canvas.line({0, 20}, {40, 20}, {red, 6, 0});
    EXPECT_TRUE(pixelIs(page, 20, 18, red));
    EXPECT_TRUE(pixelIs(page, 20, 21, red));
    EXPECT_TRUE(pixelIs(page, 20, 25, white));
}

TEST(QtCanvas, LineStylesLeaveGaps) {
    QImage page = makePageImage(200, 10);
    QtCanvas canvas(page, 200, 10);
    canvas.line({0, 5}, {200, 5}, {red, 2, 1});
    int red_pixels = 0;
    for (int x = 0; x < 200; ++x) red_pixels += pixel(page, x, 5) == red ? 1 : 0;
    EXPECT_TRUE(showsIn(page, red_pixels > 60 && red_pixels < 190, "red strokes with gaps"));
}

TEST(QtCanvas, TextMovesThePositionDownOneLine) {
    QImage page = makePageImage(200, 100);
    QtCanvas canvas(page, 200, 100);
    const TextStyle style{"Arial", 12, false, false, black};
    canvas.setTextPosition({40, 10});
    canvas.text("Calm Winds", style);
    EXPECT_DOUBLE_EQ(canvas.textPosition().x, 0);
    EXPECT_DOUBLE_EQ(canvas.textPosition().y, 10 + canvas.measure("Calm Winds", style).height);
    EXPECT_GT(inkIn(page, QRect(40, 10, 100, 20)), 50);
    EXPECT_EQ(inkIn(page, QRect(0, 0, 38, 100)), 0);
}

TEST(QtCanvas, EmptyTextStillTakesItsLine) {
    QImage page = makePageImage(50, 50);
    QtCanvas canvas(page, 50, 50);
    canvas.text("", {"Arial", 8, false, false, black});
    EXPECT_GT(canvas.textPosition().y, 8);
}

TEST(QtCanvas, TextSizesAreOfNinetySixDotsAnInchOnEveryDevice) {
    QImage page = makePageImage(100, 100);
    QImage sharp = makePageImage(100, 100, 2);
    QTemporaryDir directory;
    QPdfWriter print(directory.filePath("page.pdf"));
    print.setResolution(600);
    const TextStyle style{"Arial", 20, false, false, black};
    const TextSize onPage = QtCanvas(page, 100, 100).measure("Wind", style);
    const TextSize onSharp = QtCanvas(sharp, 100, 100).measure("Wind", style);
    const TextSize onPrint = QtCanvas(print, 100, 100).measure("Wind", style);
    // 20 points are 26.67 pixels; the metric-compatible fonts have a line height of 1.15 times that.
    EXPECT_NEAR(onPage.height, 26.67 * 1.15, 1.5);
    EXPECT_NEAR(onSharp.height, onPage.height, 1.0);
    EXPECT_NEAR(onPrint.height, onPage.height, 1.0);
    EXPECT_NEAR(onSharp.width, onPage.width, 3.0);
    EXPECT_NEAR(onPrint.width, onPage.width, 3.0);
}

TEST(QtCanvas, BytesThatAreNoUtf8AreShownAsWindowsText) {
    QImage page = makePageImage(100, 40);
    QtCanvas canvas(page, 100, 40);
    const TextStyle style{"Arial", 12, false, false, black};
    EXPECT_DOUBLE_EQ(canvas.measure("M\xFCnchen", style).width,
                     canvas.measure("M\xC3\xBCnchen", style).width);
}

TEST(QtCanvas, BlitStretchesThePictureToItsTarget) {
    QImage source(2, 1, QImage::Format_RGB32);
    source.setPixelColor(0, 0, Qt::red);
    source.setPixelColor(1, 0, Qt::blue);
    QImage page = makePageImage(100, 100);
    QtCanvas(page, 100, 100).blit(std::make_shared<QtPicture>(source), {0, 0, 100, 100});
    EXPECT_TRUE(pixelIs(page, 5, 50, red));
    EXPECT_TRUE(pixelIs(page, 95, 50, blue));
}

TEST(QtCanvas, MaskedBlitShowsThePictureWhereTheMaskIsBlack) {
    QImage source(20, 20, QImage::Format_RGB32);
    source.fill(Qt::red);
    QImage mask(20, 20, QImage::Format_RGB32);
    mask.fill(Qt::white);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 10; ++x) mask.setPixelColor(x, y, Qt::black);
    QImage page = makePageImage(20, 20);
    QtCanvas(page, 20, 20)
        .blitMasked(std::make_shared<QtPicture>(source), std::make_shared<QtPicture>(mask), {0, 0, 20, 20});
    EXPECT_TRUE(pixelIs(page, 3, 10, red));
    EXPECT_TRUE(pixelIs(page, 16, 10, white));
}

TEST(QtCanvas, NumbersBeyondAnyPageDoNoHarm) {
    QImage page = makePageImage(60, 60);
    QtCanvas canvas(page, 60, 60);
    canvas.pie({30, 30}, 1e300, 0, 1, red, black);
    canvas.pie({30, 30}, std::nan(""), 0, 1, red, black);
    canvas.circle({1e300, -1e300}, 1e300, blue);
    canvas.line({-1e300, 30}, {1e300, 30}, {blue, 1, 0});
    canvas.setTextPosition({1e300, 1e300});
    canvas.text(std::string(1000000, 'W'), {"Arial", 1e9, false, false, black});
    EXPECT_TRUE(pixelIs(page, 45, 25, red));
}

/// From a page's width to what no page has: neither the edges nor the inside of a shape are lost on the way.
TEST(QtCanvas, ShapesOfAnySizeFillTheirPartOfThePage) {
    for (const double size : {60.0, 1e3, 2.9e4, 3.1e4, 1e5, 9e5, 1e9, 1e300}) {
        SCOPED_TRACE(size);
        QImage page = makePageImage(60, 60);
        QtCanvas canvas(page, 60, 60);
        canvas.pie({30, 30}, size, 0, 1, red, black);
        EXPECT_TRUE(pixelIs(page, 45, 25, red));
        EXPECT_TRUE(pixelIs(page, 15, 25, white));
        EXPECT_TRUE(pixelIs(page, 45, 40, white));
        EXPECT_GT(inkIn(page, QRect(40, 29, 20, 3)), 15) << "its edge";
        canvas.clear(white);
        const double radius = std::min(size, 9e5);
        canvas.disc({30 - radius, 30}, radius, red, black);
        EXPECT_TRUE(pixelIs(page, 15, 30, red));
        EXPECT_TRUE(pixelIs(page, 45, 30, white));
        EXPECT_EQ(pixel(page, 31, 30), white);
        EXPECT_NE(pixel(page, 29, 30), red) << "its edge";
        canvas.clear(white);
        canvas.fillPolygon({{30, 30}, {30 + size, 30 - 0.5 * size}, {30 + size, 30 + 0.25 * size}}, blue);
        EXPECT_TRUE(pixelIs(page, 45, 28, blue));
        EXPECT_TRUE(pixelIs(page, 20, 28, white));
        canvas.clear(white);
        canvas.fillPolygon({{-size, -size}, {size, -size}, {size, size}, {-size, size}}, blue);
        EXPECT_TRUE(pixelIs(page, 5, 55, blue));
    }
}

/// On a sharp page it is the pixels that are too many for the toolkit, not the units.
TEST(QtCanvas, ShapesThatAreFarOnlyInPixelsAreFilledOnlyRoundThePage) {
    for (const double scale : {1.0, 4.0}) {
        SCOPED_TRACE(scale);
        QPicture calls;
        QPainter painter(&calls);
        painter.scale(scale, scale);
        QtCanvas(painter, 60, 60).fillPolygon({{30, 30}, {2e4, 20}, {2e4, 40}}, blue);
        painter.end();
        EXPECT_EQ(calls.boundingRect().right() > 1e4, scale < 2);
        QImage page = makePageImage(60, 60, scale);
        QtCanvas canvas(page, 60, 60);
        const int unit = static_cast<int>(scale);
        canvas.pie({30, 30}, 2e4, 0, 1, red, black);
        EXPECT_TRUE(pixelIs(page, 45 * unit, 25 * unit, red));
        EXPECT_TRUE(pixelIs(page, 15 * unit, 25 * unit, white));
        canvas.clear(white);
        canvas.disc({30 - 2e4, 30}, 2e4, red, black);
        EXPECT_TRUE(pixelIs(page, 15 * unit, 30 * unit, red));
        EXPECT_TRUE(pixelIs(page, 45 * unit, 30 * unit, white));
    }
}

TEST(QtCanvas, SharpPageHasMorePixelsForTheSameUnits) {
    QImage page = makePageImage(100, 100, 2);
    EXPECT_EQ(page.width(), 200);
    QtCanvas(page, 100, 100).fillRectangle({50, 50, 100, 100}, red);
    EXPECT_TRUE(pixelIs(page, 150, 150, red));
    EXPECT_TRUE(pixelIs(page, 99, 99, white));
}

}  // namespace
}  // namespace zg
