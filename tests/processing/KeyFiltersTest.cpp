#include "processing/KeyFilters.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using namespace zg;

struct Filter {
    const char* name;
    std::int16_t (*pass)(std::int16_t);
    const char* printable;  ///< the characters from 32 to 127 that pass, in code order
};

class KeyFilterTest : public testing::TestWithParam<Filter> {};

TEST_P(KeyFilterTest, PassesExactlyItsCharacters) {
    std::string passed;
    for (std::int16_t key = 32; key <= 127; ++key) {
        const std::int16_t result = GetParam().pass(key);
        EXPECT_TRUE(result == 0 || result == key) << key;
        if (result != 0) passed.push_back(static_cast<char>(key));
    }
    EXPECT_EQ(passed, GetParam().printable);
}

TEST_P(KeyFilterTest, ControlAndHighCodesAlwaysPass) {
    for (std::int16_t key = 0; key < 32; ++key) EXPECT_EQ(GetParam().pass(key), key);
    for (std::int16_t key = 128; key < 256; ++key) EXPECT_EQ(GetParam().pass(key), key);
    for (const std::int16_t key : {std::numeric_limits<std::int16_t>::min(), std::int16_t{-1},
                                   std::int16_t{304}, std::numeric_limits<std::int16_t>::max()})
        EXPECT_EQ(GetParam().pass(key), key);
}

INSTANTIATE_TEST_SUITE_P(Filters, KeyFilterTest,
                         testing::Values(Filter{"Positive", KeyNumericPositive, ".0123456789"},
                                         Filter{"Integer", KeyNumericInteger, "0123456789"},
                                         Filter{"Signed", KeyNumericSigned, "-.0123456789"},
                                         Filter{"Heights", KeyNumericHeights, ",.0123456789"}),
                         [](const auto& each) { return each.param.name; });

}  // namespace
