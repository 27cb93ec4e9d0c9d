#include "base/Numbers.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"

namespace zg {
namespace {

TEST(Numbers, SinglesPrintWithSevenDigits) {
    EXPECT_EQ(singleText(0.5F), "0.5");
    EXPECT_EQ(singleText(16711680.0F), "1.671168E+07");
    EXPECT_EQ(singleText(9999999.0F), "9999999");
    EXPECT_EQ(singleText(1e7F), "1E+07");
    EXPECT_EQ(doubleText(0.0174532925199433), "1.74532925199433E-02");
}

}  // namespace
}  // namespace zg
