// The picture itself, probed where the figures of the file determine the colour.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "graph/control/CreatePolar.h"
#include "graph/frq/OpenFreqFile.h"
#include "graph/render/RedrawGraph.h"
#include "platform/QtCanvas.h"
#include "platform/QtText.h"
#include "tests/support/Pixels.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

constexpr int pageSide = 600;

class RosePixels : public ::testing::TestWithParam<const char*> {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        polar_ = createPolar(modPolarGraph);
        TestHost host;
        ASSERT_EQ(loadFreqFile(std::string(ZG_SOURCE_DIR "/data/samples/") + GetParam(), modPolarGraph, host),
                  FreqFileOutcome::Loaded);
        page_ = makePageImage(pageSide, pageSide);
        QtCanvas canvas(page_, pageSide, pageSide);
        redrawFrame(PlotSettings{}, polar_, modPolarGraph, canvas, geometry_);
    }

    /// The pixel at that distance and compass bearing from the centre.
    QPoint placeOf(double bearingDegrees, double radius) const {
        const double bearing = bearingDegrees * std::numbers::pi / 180;
        return {static_cast<int>(geometry_.CentreX + radius * std::sin(bearing)),
                static_cast<int>(geometry_.CentreY - radius * std::cos(bearing))};
    }

    Colour at(double bearingDegrees, double radius) const {
        return fromQColor(page_.pixelColor(placeOf(bearingDegrees, radius)));
    }

    Polar polar_;
    PolarGeometry geometry_;
    QImage page_;
};

TEST_P(RosePixels, EverySectorHasItsClassColoursAtTheRadiiOfTheFile) {
    int probed = 0;
    for (int row = 1; row <= 16; ++row) {
        const double bearing = (row - 1) * 22.5;  // row 1 is north and rows run clockwise
        double inner = 0;
        double share = 0;
        for (int speedClass = 1; speedClass <= 6; ++speedClass) {
            share += modPolarGraph.FrqFraction(row, speedClass);
            const double outer = share * 20 * geometry_.UnitLength;
            const double middle = (inner + outer) / 2;
            // A band is probed where neither outlines nor antialiased edges touch the middle pixel.
            if (outer - inner > 5 && middle > 25) {
                ++probed;
                const QPoint place = placeOf(bearing, middle);
                EXPECT_TRUE(pixelIs(
                    page_, place.x(), place.y(),
                    paintedColour(modPolarGraph.WindClassColor[static_cast<std::size_t>(speedClass - 1)])))
                    << "row " << row << " class " << speedClass;
            }
            inner = outer;
        }
    }
    EXPECT_GE(probed, 8) << "the sample shows too little to judge by";
}

TEST_P(RosePixels, BarsLeaveGapsOfFifteenDegrees) {
    const auto isClassColour = [](Colour colour) {
        for (const float stored : modPolarGraph.WindClassColor)
            if (colour == paintedColour(stored)) return true;
        return false;
    };
    for (int row = 1; row <= 16; ++row) {
        const double between = (row - 1) * 22.5 + 11.25;
        for (double radius = 30; radius < 5 * geometry_.UnitLength; radius += 1)
            EXPECT_TRUE(showsIn(page_, !isClassColour(at(between, radius)) || at(between, radius) == black,
                                "a gap after each bar"))
                << "row " << row << " at " << radius;
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, RosePixels,
                         ::testing::Values("LOVETT_1988.frq", "trade_wind_coast.frq", "mountain_valley.frq",
                                           "continental_plain.frq", "north_sea.frq"));

}  // namespace
}  // namespace zg
