#include "base/Text.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Raises.h"

namespace zg {
namespace {

TEST(Trim, TakesBlanksAndLeavesTabs) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("\ta "), "\ta");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
    EXPECT_EQ(trim("a"), "a");
    EXPECT_EQ(trim(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(trim("\xA0 "), "\xA0");
}

TEST(Trim, TheViewPointsIntoItsArgument) {
    const std::string text = "  ab ";
    EXPECT_EQ(trimmed(text).data(), text.data() + 2);
    EXPECT_EQ(trimmed(text).size(), 2U);
}

TEST(SqueezeBlanks, LeavesSingleBlanksBetweenWords) {
    EXPECT_EQ(squeezeBlanks("  Site   survey  2001 "), "Site survey 2001");
    EXPECT_EQ(squeezeBlanks("   "), "");
    EXPECT_EQ(squeezeBlanks("a\t\tb"), "a\t\tb");
    EXPECT_EQ(squeezeBlanks(""), "");
    EXPECT_EQ(squeezeBlanks("a"), "a");
    EXPECT_EQ(squeezeBlanks("a \t  b"), "a \t b");
}

TEST(Case, ChangesAsciiLettersOnly) {
    EXPECT_EQ(lcase("AbZ\xC4"), "abz\xC4");
    EXPECT_EQ(ucase("abz\xE4"), "ABZ\xE4");
    EXPECT_EQ(lcase("@[`{AZ09"), "@[`{az09");
    EXPECT_EQ(ucase("@[`{az09"), "@[`{AZ09");
    EXPECT_EQ(lcase(std::string_view("A\0B", 3)), std::string("a\0b", 3));
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
    EXPECT_RAISES(9, "Subscript out of range", pieces[static_cast<std::size_t>(-1)]);
}

TEST(Split, NeverTrims) {
    const Pieces pieces = split(" a , b\t", ",");
    EXPECT_EQ(pieces[0], " a ");
    EXPECT_EQ(pieces[1], " b\t");
}

TEST(Split, ASeparatorAloneHasTwoEmptyPieces) {
    const Pieces pieces = split("=", "=");
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0], "");
    EXPECT_EQ(pieces[1], "");
}

TEST(Split, TakesLongSeparatorsFromTheLeft) {
    const Pieces pieces = split("a///b", "//");
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[1], "/b");
}

TEST(Split, WithoutASeparatorTheTextIsOnePiece) {
    EXPECT_EQ(split("abc", ",").size(), 1U);
    const Pieces pieces = split("abc", "");
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0], "abc");
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
    EXPECT_EQ(leftN("", 3), "");
    EXPECT_EQ(leftN("abc", 0), "");
    EXPECT_EQ(rightN("", 3), "");
    EXPECT_EQ(rightN("abc", 0), "");
    EXPECT_EQ(midN("abc", 1, 0), "");
    EXPECT_EQ(midN("", 1, 3), "");
    EXPECT_EQ(midN("abc", static_cast<std::size_t>(-1), 3), "");
    EXPECT_EQ(midN("abc", 2, static_cast<std::size_t>(-1)), "bc");
}

TEST(RemoveQuotes, TrimsFirst) {
    EXPECT_EQ(removeQuotes("  \" a\"b\"  "), " ab");
    EXPECT_EQ(removeQuotes("\"\"\""), "");
    EXPECT_EQ(removeQuotes("'a'"), "'a'");
}

}  // namespace
}  // namespace zg
