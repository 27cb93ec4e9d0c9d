#include "processing/RunReasons.h"

#include <gtest/gtest.h>

#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

TEST(ForeseenTrouble, IsABlankInTheNameOrAMissingProcessor) {
    const TempDirectory directory;
    EXPECT_EQ(foreseenTrouble("B", directory.path()), "tempoline.exe is missing in " + directory.path());
    directory.write("tempoline.exe", "");
    EXPECT_EQ(foreseenTrouble("B", directory.path()), "");
    EXPECT_EQ(foreseenTrouble("my B", directory.path()),
              "a blank in the name: the processor cannot find its control file; rename the input");
    EXPECT_EQ(foreseenTrouble("my B", "/no/such/place"), foreseenTrouble("my B", directory.path()))
        << "even a processor that is there could not work";
}

TEST(LastLineOfListing, IsTheLastOneWithAText) {
    const TempDirectory directory;
    EXPECT_EQ(lastLineOfListing(directory.file("none.lst")), "");
    EXPECT_EQ(lastLineOfListing(directory.write("a.lst", "")), "");
    EXPECT_EQ(lastLineOfListing(directory.write("b.lst", "one\r\n\r\nERROR: two\r\n  \r\n\r\n")),
              "ERROR: two");
    EXPECT_EQ(lastLineOfListing(directory.write("c.lst", "one\n  two  ")), "two");
    directory.write("D.LST", "in capitals\n");
    EXPECT_EQ(lastLineOfListing(directory.file("d.lst")), "in capitals");
    EXPECT_EQ(lastLineOfListing(directory.path()), "") << "a directory has no lines";
}

TEST(WarningsOfListing, AreTheFirstThreeAndHowManyMore) {
    const TempDirectory directory;
    EXPECT_EQ(warningsOfListing(directory.file("none.lst")), "");
    EXPECT_EQ(warningsOfListing(directory.path()), "");
    const std::string three =
        "WARNING: one\r\n  no WARNING: here\r\nNOTE: x\r\nWARNING: two\r\nWARNING: 3\r\n";
    EXPECT_EQ(warningsOfListing(directory.write("a.lst", three + "RUN COMPLETED\r\n")),
              "WARNING: one\nWARNING: two\nWARNING: 3");
    EXPECT_EQ(warningsOfListing(directory.write("b.lst", three + "WARNING: 4\r\nWARNING: 5\r\n")),
              "WARNING: one\nWARNING: two\nWARNING: 3\n2 more in the listing");
    EXPECT_EQ(warningsOfListing(directory.write("c.lst", "RUN COMPLETED\r\n")), "");
}

}  // namespace
}  // namespace zg
