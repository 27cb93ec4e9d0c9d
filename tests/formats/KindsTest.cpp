#include "formats/Kinds.h"

#include <gtest/gtest.h>

namespace zg {

TEST(Kinds, EachHasItsWordInAnyLetterCase) {
    for (const Format& format : formats()) EXPECT_EQ(kindOfMdata(format.mdata), format.kind) << format.mdata;
    EXPECT_EQ(kindOfMdata("aermpfl"), InputKind::AermPfl);
    for (const char* const none : {"", "SURF ", "AMMNETW", "M2D"}) EXPECT_FALSE(kindOfMdata(none)) << none;
    EXPECT_STREQ(mdataOf(InputKind::MonitorW), "MONITORW");
    EXPECT_STREQ(mdataOf(InputKind::M3d), "M3D");
}

TEST(Kinds, TheFirstLineIsKnownByWordAndVersion) {
    EXPECT_EQ(formatOf(InputKind::Tsf).firstWord, "TIMESERIES.TSF");
    EXPECT_EQ(formatOf(InputKind::AermSfc).firstWord, "");
    EXPECT_TRUE(formatOf(InputKind::Up).hasVersion("2.0"));
    EXPECT_TRUE(formatOf(InputKind::Ventos).hasVersion("2.1"));
    EXPECT_FALSE(formatOf(InputKind::Ventos).hasVersion("2.0"));
    EXPECT_FALSE(formatOf(InputKind::MonitorW).hasVersion(""));
}

TEST(Kinds, PlacesAreAskedOfGrids) {
    for (const Format& format : formats())
        EXPECT_EQ(isGridded(format.kind), format.kind == InputKind::M3d || format.kind == InputKind::Ventos)
            << format.mdata;
}

}  // namespace zg
