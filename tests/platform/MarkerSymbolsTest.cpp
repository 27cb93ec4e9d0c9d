#include "platform/MarkerSymbols.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>

#include "platform/QtCanvas.h"
#include "tests/support/Pixels.h"

namespace zg {
namespace {

/// A Windows of Wine does not have the stand-in face, and one of its own has no need of it.
class MarkerSymbols : public ::testing::Test {
 protected:
    static void SetUpTestSuite() {
        if (QFontDatabase::families().contains(symbolFace())) return;
        ASSERT_GE(QFontDatabase::addApplicationFont(QStringLiteral(ZG_SYMBOL_FACE)), 0) << ZG_SYMBOL_FACE;
    }
};

TEST_F(MarkerSymbols, OnlyTheSymbolFaceNeedsThemAndOnlyWhereItIsMissing) {
    EXPECT_FALSE(needsSymbols("Arial"));
    EXPECT_EQ(needsSymbols("WINGDINGS"),
              !QFontDatabase::families().contains("Wingdings", Qt::CaseInsensitive));
}

TEST_F(MarkerSymbols, KnownCodesHaveTheirSymbols) {
    EXPECT_EQ(symbolOf('A'), u'\u270C');
    EXPECT_EQ(symbolOf('J'), u'\u263A');
    EXPECT_EQ(symbolOf('l'), u'\u25CF');
    EXPECT_EQ(symbolOf('n'), u'\u25A0');
    EXPECT_EQ(symbolOf(0xAB), u'\u2605');
    EXPECT_EQ(symbolOf(0xFC), u'\u2713');
}

TEST_F(MarkerSymbols, TheStandInFaceHasEverySymbol) {
    const QRawFont face = QRawFont::fromFont(QFont(symbolFace(), 12));
    ASSERT_TRUE(face.familyName().contains("DejaVu")) << face.familyName().toStdString();
    for (int code = 0; code < 256; ++code)
        EXPECT_TRUE(face.supportsCharacter(QChar(symbolOf(static_cast<unsigned char>(code)))))
            << std::hex << code;
}

TEST_F(MarkerSymbols, AMarkerLeavesInkThatIsNoBox) {
    QImage page = makePageImage(60, 60);
    QtCanvas canvas(page, 60, 60);
    canvas.setTextPosition({10, 10});
    canvas.text("l", {"Wingdings", 24, false, false, 0});
    int dark = 0;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x) dark += page.pixelColor(x, y).lightness() < 100 ? 1 : 0;
    EXPECT_TRUE(showsIn(page, dark > 150, "a filled dot of 32 pixels"));
}

}  // namespace
}  // namespace zg
