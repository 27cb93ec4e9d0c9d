#include "platform/ColourBox.h"

#include <gtest/gtest.h>

#include <QTest>

#include "platform/QtText.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

TEST(ColourBox, ItAndTheButtonBesideItAskAndACancelChangesNothing) {
    TestHost host;
    ColourBox box(rgb(1, 2, 3));
    QPushButton beside;
    std::vector<Colour> chosen;
    box.asks(host, &beside, [&](Colour colour) {
        EXPECT_EQ(box.colour(), colour) << "the box shows it already";
        chosen.push_back(colour);
    });
    host.colourAnswers = {rgb(4, 5, 6), std::nullopt, rgb(7, 8, 9)};
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_EQ(box.colour(), rgb(4, 5, 6));
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_EQ(box.colour(), rgb(4, 5, 6));
    QTest::mouseClick(&beside, Qt::LeftButton);
    EXPECT_EQ(host.colourPicks, (std::vector<Colour>{rgb(1, 2, 3), rgb(4, 5, 6), rgb(4, 5, 6)}));
    EXPECT_EQ(chosen, (std::vector<Colour>{rgb(4, 5, 6), rgb(7, 8, 9)}));
}

TEST(ColourBox, IsPaintedInItsColour) {
    ColourBox box(rgb(200, 10, 20));
    box.resize(40, 22);
    EXPECT_EQ(fromQColor(box.grab().toImage().pixelColor(20, 11)), rgb(200, 10, 20));
}

}  // namespace
}  // namespace zg
