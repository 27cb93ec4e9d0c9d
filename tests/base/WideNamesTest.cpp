#include "base/WideNames.h"

#include <gtest/gtest.h>

#include <string>

namespace zg {
namespace {

TEST(WideNames, AreUtf8ThereAndBack) {
    const std::string bytes = "C:\\Würzburg/Москва 風 \xF0\x9F\x8C\xAC.frq";
    const std::u16string units = u"C:\\Würzburg/Москва 風 \U0001F32C.frq";
    EXPECT_EQ(wideName(bytes), units);
    EXPECT_EQ(narrowName(units), bytes);
    EXPECT_EQ(wideName(""), u"");
    EXPECT_EQ(narrowName(u""), "");
}

TEST(WideNames, APartThatIsNoUtf8IsWindows1252) {
    EXPECT_EQ(wideName("C:\\Würzburg\\f\xFCr \x80.frq"), u"C:\\Würzburg\\für €.frq");
    EXPECT_EQ(wideName("\xFC/ü/\xFC"), u"ü/ü/ü");
    EXPECT_EQ(wideName("\xC3"), u"Ã") << "cut short";
    EXPECT_EQ(wideName("\xF4\x90\x80\x80"), u"ô\x90€€") << "beyond the last character";
}

TEST(WideNames, HalvesOfPairsSurvive) {
    const std::u16string high = {u'a', char16_t{0xD83C}, u'b'};
    const std::u16string low = {char16_t{0xDF2C}, char16_t{0xD83C}};
    for (const std::u16string& units : {high, low}) EXPECT_EQ(wideName(narrowName(units)), units);
    EXPECT_EQ(narrowName(high),
              "a\xED\xA0\xBC"
              "b");
}

TEST(WideNames, EveryUnitSurvives) {
    for (unsigned unit = 1; unit < 0x10000U; ++unit) {
        const std::u16string units = {static_cast<char16_t>(unit)};
        ASSERT_EQ(wideName(narrowName(units)), units) << unit;
    }
}

}  // namespace
}  // namespace zg
