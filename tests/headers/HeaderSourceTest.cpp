#include "headers/HeaderSource.h"

#include <gtest/gtest.h>

#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

/// The error that the call raises; fails the test if it raises none.
template <typename Call>
HeaderError errorOf(Call call) {
    try {
        call();
    } catch (const HeaderError& error) {
        return error;
    }
    ADD_FAILURE() << "no error";
    return HeaderError(0, "", {}, "");
}

TEST(HeaderSource, AFileAndATextAreReadAlike) {
    const TempDirectory directory;
    const std::string text = "one\r\ntwo";
    HeaderSource ofFile(directory.write("a.dat", text));
    HeaderSource ofText(text, "a.dat");
    for (HeaderSource* source : {&ofFile, &ofText}) {
        EXPECT_EQ(source->ahead(), text);
        EXPECT_EQ(source->readLine("first"), "one");
        EXPECT_FALSE(source->atEnd());
        EXPECT_EQ(source->readLine("second"), "two");
        EXPECT_TRUE(source->atEnd());
        const HeaderError error = errorOf([&] { source->readLine("third"); });
        EXPECT_EQ(error.number, 62);
        EXPECT_EQ(error.description, "Input past end of file");
        EXPECT_EQ(error.place.file, "a.dat");
        EXPECT_EQ(error.where, "3");
        EXPECT_EQ(messageOf(error), "line 3 (third): the file ends here");
    }
}

TEST(HeaderSource, WhatConversionsRaiseHasItsPlace) {
    HeaderSource source("1 x 99999\n", "a.dat");
    HeaderFields fields(source, source.readLine("numbers"));
    EXPECT_EQ(fields.whole("first"), 1);
    const HeaderError notNumber = errorOf([&] { source.placing([&] { fields.whole("second"); }); });
    EXPECT_EQ(notNumber.number, 13);
    EXPECT_EQ(notNumber.description, "Type mismatch");
    EXPECT_EQ(notNumber.place.line, 1U);
    EXPECT_EQ(notNumber.place.part, "numbers");
    EXPECT_EQ(notNumber.place.field, "second");
    EXPECT_EQ(messageOf(notNumber), "line 1 (numbers): second \"x\" is not a number");
    const HeaderError large = errorOf([&] { source.placing([&] { fields.whole("third"); }); });
    EXPECT_EQ(large.number, 6);
    EXPECT_EQ(messageOf(large), "line 1 (numbers): third \"99999\" is out of range");
    const HeaderError missing = errorOf([&] { source.placing([&] { fields.number("fourth"); }); });
    EXPECT_EQ(missing.number, 9);
    EXPECT_EQ(messageOf(missing), "line 1 (numbers): fourth is missing");
}

TEST(HeaderSource, AnEarlierLineCanBeAtFault) {
    HeaderSource source("period\nstation\n", "a.dat");
    source.readLine("period");
    const HeaderSource::Line period = source.line();
    source.readLine("station");
    source.atLine(period);
    source.atField("begin");
    const HeaderError error = errorOf([&] { source.fail("does not exist", "a notice"); });
    EXPECT_EQ(messageOf(error), "line 1 (period): begin does not exist");
    EXPECT_EQ(error.notice, "a notice");
}

TEST(HeaderSource, AFieldIsQuotedByItsFirstTwentyCharacters) {
    HeaderSource source("abcdefghijklmnopqrstu", "a.dat");
    HeaderFields fields(source, source.readLine("numbers"));
    EXPECT_EQ(messageOf(errorOf([&] { source.placing([&] { fields.number("first"); }); })),
              "line 1 (numbers): first \"abcdefghijklmnopqrst\" is not a number");
}

TEST(HeaderSource, AFileThatCannotBeOpenedIsAtFaultAsAWhole) {
    const TempDirectory directory;
    const HeaderError error = errorOf([&] { HeaderSource source(directory.file("no.dat")); });
    EXPECT_EQ(error.number, 53);
    EXPECT_EQ(error.place.file, "no.dat");
    EXPECT_EQ(error.where, "");
    EXPECT_EQ(messageOf(error), "File not found");
}

}  // namespace
}  // namespace zg
