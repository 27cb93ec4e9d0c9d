#include "base/Encoding.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

TEST(Encoding, ValidUtf8StaysAsItIs) {
    EXPECT_EQ(toUtf8("M\xC3\xBCnchen \xE2\x82\xAC \xF0\x9F\x8C\xAC"),
              "M\xC3\xBCnchen \xE2\x82\xAC \xF0\x9F\x8C\xAC");
    EXPECT_EQ(toUtf8(""), "");
}

TEST(Encoding, OtherBytesAreReadAsWindowsText) {
    EXPECT_EQ(toUtf8("M\xFCnchen"), "M\xC3\xBCnchen");
    EXPECT_EQ(toUtf8("\x80 \x96"), "\xE2\x82\xAC \xE2\x80\x93");
    EXPECT_EQ(toUtf8("\x81"), "\xC2\x81");
}

TEST(Encoding, BrokenUtf8IsNoUtf8) {
    for (const char* bytes : {"\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                              "\xF5\x80\x80\x80", "\xE2\x82", "\x80"})
        EXPECT_FALSE(isUtf8(bytes)) << bytes;
}

TEST(Encoding, TypedTextIsStoredAsWindowsTextWhereItFits) {
    EXPECT_EQ(fromUtf8("M\xC3\xBCnchen \xE2\x82\xAC"), "M\xFCnchen \x80");
    EXPECT_EQ(fromUtf8("\xE5\x8C\x97"), "\xE5\x8C\x97") << "what does not fit stays UTF-8";
}

TEST(Encoding, TypedTextWhoseWindowsBytesReadAsOtherTextStaysUtf8) {
    const std::string text = "\xC3\x83\xC2\xA9";  // in windows-1252 these bytes are one in UTF-8
    EXPECT_EQ(fromUtf8(text), text);
    EXPECT_EQ(toUtf8(fromUtf8(text)), text);
}

TEST(Encoding, OneBadByteMakesTheWholeTextWindowsText) {
    EXPECT_EQ(toUtf8("\xC3\xA9 \xE9"), "\xC3\x83\xC2\xA9 \xC3\xA9");
}

TEST(Encoding, EveryWindowsCharacterComesBack) {
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(fromUtf8(toUtf8(text)), text) << byte;
    }
}

}  // namespace
}  // namespace zg
