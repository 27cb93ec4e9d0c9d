#include "tempoline/OlderResults.h"

#include <gtest/gtest.h>

#include "base/Lines.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

const ResultSet usual = {"out.tsf", "out.tab", "out.frq"};

/// Every file of the directory with its contents.
std::string contentsHere() {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator("."))
        files[entry.path().filename().string()] =
            entry.is_directory() ? "directory" : readWholeFile(entry.path().string());
    std::string text;
    for (const auto& [name, content] : files)
        text += (text.empty() ? "" : ", ") + name + (content.empty() ? "" : " = ") + content;
    return text;
}

}  // namespace

TEST(OlderResults, StandAsideUntilTheRunHasSucceeded) {
    const InDirectory inside;
    for (const std::string& name : usual) inside.directory.write(name, "old");
    OlderResults older;
    EXPECT_EQ(older.putAside({usual}), "");
    EXPECT_EQ(contentsHere(), "out.previous.frq = old, out.previous.tab = old, out.previous.tsf = old");
    EXPECT_EQ(
        keptText(older.kept()),
        "the results of an earlier run are kept as out.previous.frq, out.previous.tab, out.previous.tsf");
    inside.directory.write("out.frq", "new");
    EXPECT_TRUE(older.remove().empty());
    EXPECT_EQ(contentsHere(), "out.frq = new");
    EXPECT_EQ(keptText(older.kept()), "");
}

TEST(OlderResults, OfAnEarlierFailureAreKeptAndNamedAndRemovedToo) {
    const InDirectory inside;
    inside.directory.write("out.previous.frq", "old");
    OlderResults older;
    EXPECT_EQ(older.putAside({usual}), "");
    EXPECT_EQ(keptText(older.kept()), "the results of an earlier run are kept as out.previous.frq");
    EXPECT_TRUE(older.remove().empty());
    EXPECT_EQ(contentsHere(), "");
}

TEST(OlderResults, WholeResultsTakeThePlaceOfThoseAside) {
    const InDirectory inside;
    for (const std::string& name : usual) inside.directory.write(name, "newer");
    inside.directory.write("out.previous.tab", "older");
    inside.directory.write("out.previous.frq", "older");
    OlderResults older;
    EXPECT_EQ(older.putAside({usual}), "");
    EXPECT_EQ(contentsHere(), "out.previous.frq = newer, out.previous.tab = newer, out.previous.tsf = newer");
}

TEST(OlderResults, TwoNamesOfOneFileBecomeOne) {
    const InDirectory inside;
    inside.directory.write("out.frq", "old");
    std::filesystem::create_hard_link("out.frq", "out.previous.frq");
    OlderResults older;
    EXPECT_EQ(older.putAside({{"out.frq"}}), "");
    EXPECT_EQ(contentsHere(), "out.previous.frq = old");
}

TEST(OlderResults, WhatAKilledRunLeftOfItsResultsDoesNotTakeThePlaceOfThoseAside) {
    const InDirectory inside;
    inside.directory.write("out.tsf", "of a killed run");
    inside.directory.write("out.tab", "of a killed run");
    inside.directory.write("out.previous.tab", "good");
    inside.directory.write("out.previous.frq", "good");
    OlderResults older;
    EXPECT_EQ(older.putAside({usual}), "");
    EXPECT_EQ(contentsHere(),
              "out.previous.frq = good, out.previous.tab = good, out.previous.tsf = of a killed run, "
              "out.tab = of a killed run");
}

TEST(OlderResults, OneThatCannotBeMovedIsToldAndTheOthersAreMoved) {
    const InDirectory inside;
    for (const std::string& name : usual) inside.directory.write(name, "old");
    std::filesystem::create_directory("out.previous.tsf");
    OlderResults older;
    EXPECT_EQ(older.putAside({usual}), "out.tsf: cannot be moved aside as out.previous.tsf: Is a directory");
    EXPECT_EQ(contentsHere(),
              "out.previous.frq = old, out.previous.tab = old, out.previous.tsf = directory, out.tsf = old");
}

TEST(OlderResults, AreLeftWhereAnotherRunHasMovedItsOwnThereMeanwhile) {
    const InDirectory inside;
    inside.directory.write("out.frq", "old");
    OlderResults first;
    EXPECT_EQ(first.putAside({usual}), "");
    inside.directory.write("out.frq", "of the first");
    OlderResults second;
    EXPECT_EQ(second.putAside({usual}), "");
    EXPECT_TRUE(first.remove().empty());
    EXPECT_EQ(contentsHere(), "out.previous.frq = of the first");
}

TEST(OlderResults, ManyAreNamedInPart) {
    EXPECT_EQ(keptText({"1", "2", "3", "4", "5", "6", "7", "8"}),
              "the results of an earlier run are kept as 1, 2, 3, 4, 5, 6 and 2 more");
}

TEST(OlderResults, NamesOfOutputsThatTheyAreKeptUnder) {
    EXPECT_TRUE(isKeptForOlder("out.previous"));
    EXPECT_TRUE(isKeptForOlder("out.PREVIOUS"));
    EXPECT_FALSE(isKeptForOlder("previous"));
    EXPECT_FALSE(isKeptForOlder("out.previous.one"));
    EXPECT_EQ(asideName("a.b.frq"), "a.b.previous.frq");
}

}  // namespace zg::tempoline
