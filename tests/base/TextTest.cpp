#include "base/Text.h"

#include <gtest/gtest.h>

#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(Trim, TakesBlanksAndLeavesTabs) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("\ta "), "\ta");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(SqueezeBlanks, LeavesSingleBlanksBetweenWords) {
    EXPECT_EQ(squeezeBlanks("  Site   survey  2001 "), "Site survey 2001");
    EXPECT_EQ(squeezeBlanks("   "), "");
    EXPECT_EQ(squeezeBlanks("a\t\tb"), "a\t\tb");
}

TEST(Case, ChangesAsciiLettersOnly) {
    EXPECT_EQ(lcase("AbZ\xC4"), "abz\xC4");
    EXPECT_EQ(ucase("abz\xE4"), "ABZ\xE4");
}

TEST(Split, KeepsEmptyPieces) {
    const Pieces pieces = split(",a,,b,", ",");
    ASSERT_EQ(pieces.size(), 5U);
    EXPECT_EQ(pieces[0], "");
    EXPECT_EQ(pieces[1], "a");
    EXPECT_EQ(pieces[2], "");
    EXPECT_EQ(pieces[4], "");
}

TEST(Split, OfAnEmptyTextHasNoPieceAtAll) {
    const Pieces pieces = split("", ",");
    EXPECT_EQ(pieces.size(), 0U);
    EXPECT_RAISES(9, "Subscript out of range", pieces[0]);
}

TEST(Split, RaisesPastItsEnd) {
    const std::string text = "a//b";
    const Pieces pieces = split(text, "//");
    EXPECT_EQ(pieces[1], "b");
    EXPECT_RAISES(9, "Subscript out of range", pieces[2]);
}

TEST(Parts, AreTolerantOfShortTexts) {
    EXPECT_EQ(leftN("abc", 2), "ab");
    EXPECT_EQ(leftN("abc", 9), "abc");
    EXPECT_EQ(rightN("abc", 2), "bc");
    EXPECT_EQ(rightN("abc", 9), "abc");
    EXPECT_EQ(midN("abcdef", 4, 3), "def");
    EXPECT_EQ(midN("abc", 3, 9), "c");
    EXPECT_EQ(midN("abc", 4, 1), "");
    EXPECT_RAISES(5, "Invalid procedure call or argument", midN("abc", 0, 1));
}

TEST(RemoveQuotes, TrimsFirst) { EXPECT_EQ(removeQuotes("  \" a\"b\"  "), " ab"); }

}  // namespace
}  // namespace zg
