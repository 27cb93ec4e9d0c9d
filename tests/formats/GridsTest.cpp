#include "formats/Grids.h"

#include <gtest/gtest.h>

namespace zg {

TEST(Grids, ModelsHaveFourOfTheSevenMaps) {
    for (const char* const code : {"LCC", "PS", "EM", "LL"}) {
        EXPECT_TRUE(hasMap(InputKind::M3d, code)) << code;
        EXPECT_TRUE(hasMap(InputKind::Ventos, code)) << code;
    }
    for (const char* const code : {"UTM", "TTM", "LAZA"}) {
        EXPECT_FALSE(hasMap(InputKind::M3d, code)) << code;
        EXPECT_TRUE(hasMap(InputKind::Ventos, code)) << code;
    }
    for (const char* const code : {"", "NONE", "lcc", "LCC "})
        EXPECT_FALSE(hasMap(InputKind::Ventos, code)) << code;
}

}  // namespace zg
