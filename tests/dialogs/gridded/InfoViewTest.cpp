#include "headers/InfoView.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "dialogs/gridded/ClosedLibraries.h"
#include "dialogs/gridded/DatumTable.h"
#include "dialogs/gridded/Projection.h"
#include "tests/headers/GridFiles.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

class InfoView : public ::testing::Test {
 protected:
    static InfoViewResult someResult() {
        InfoViewResult r;
        r.first = {2001, 2, 28, 23, 3599};
        r.last = {2002, 1, 1, 0, 61};
        return r;
    }
    void answer(const InfoViewResult& result) {
        modInfoViewDLL.infoview = [result](const std::string&, InputKind, InfoViewResult& r) { r = result; };
    }

    /// As the wizard does.
    static void readHeader(const std::string& path, InputKind kind) {
        ReadGridHeader(path, kind);
        projection = nativeProjection();
    }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
};

TEST_F(InfoView, TimesAreTheHourAndTheSecondsWithinIt) {
    answer(someResult());
    readHeader("x", InputKind::Ventos);
    EXPECT_EQ(modInfoViewDLL.HeaderStartTime, addSeconds(makeDate(2001, 2, 28), 23 * 3600 + 3599));
    EXPECT_EQ(modInfoViewDLL.HeaderEndTime, addSeconds(makeDate(2002, 1, 1), 61));
}

TEST_F(InfoView, TheRecordHoldsTheNativeProjection) {
    InfoViewResult r = someResult();
    r.timeZone = " utc-0500  ";
    r.PMAP = " lcc ";
    r.DATUM = "nas-c   ";
    r.UTMHEM = "s ";
    r.IUTMZN = 18;
    r.FEAST = 500.25F;
    r.FNORTH = -12;
    r.RLAT0 = -40.5F;
    r.RLON0 = 0;
    r.XLAT1 = 0;
    r.XLAT2 = 33.3F;
    answer(r);
    readHeader("x", InputKind::Ventos);
    EXPECT_EQ(modInfoViewDLL.HeaderTimeZone, "utc-0500");
    EXPECT_EQ(projection.PMAP, "LCC");
    EXPECT_EQ(projection.DATUM, "NAS-C");
    EXPECT_EQ(projection.UTMHEM, "S");
    EXPECT_EQ(projection.IUTMZN, "18");
    EXPECT_EQ(projection.FEAST, "500.25");
    EXPECT_EQ(projection.FNORTH, "-12");
    EXPECT_EQ(projection.RLAT0, "40.5S");
    EXPECT_EQ(projection.RLON0, "0E") << "zero takes the positive letter";
    EXPECT_EQ(projection.XLAT1, "0N");
    EXPECT_EQ(projection.XLAT2, "33.3N");
    r.RLON0 = -97.25F;
    answer(r);
    readHeader("x", InputKind::Ventos);
    EXPECT_EQ(projection.RLON0, "97.25W");
}

TEST_F(InfoView, AnImpossibleTimeRaisesAndAFlaggedFileHasNone) {
    InfoViewResult r = someResult();
    r.last.month = 13;
    answer(r);
    EXPECT_RAISES(13, "Type mismatch", readHeader("x", InputKind::Ventos));
    r.errorFlag = 3;
    answer(r);
    readHeader("x", InputKind::Ventos);
    EXPECT_EQ(modInfoViewDLL.HeaderStartTime, DateTime());
    EXPECT_EQ(modInfoViewDLL.result.errorFlag, 3);
}

TEST_F(InfoView, ACallThatFailsLeavesTheHeaderEmptyAndIsNotTold) {
    modInfoViewDLL.HeaderStartTime = makeDate(2000, 1, 1);
    modInfoViewDLL.infoview = [](const std::string&, InputKind, InfoViewResult& r) {
        r.PMAP = "LCC";
        throw RunTimeError(53, "File not found");
    };
    readHeader("x", InputKind::Ventos);
    EXPECT_EQ(modInfoViewDLL.HeaderStartTime, DateTime());
    EXPECT_EQ(modInfoViewDLL.HeaderTimeZone, "");
    EXPECT_EQ(modInfoViewDLL.result.errorFlag, 0);
    EXPECT_EQ(projection.PMAP, "");
    EXPECT_EQ(projection.RLAT0, "0N");
}

TEST_F(InfoView, TheNotesOfALibraryAreRemoved) {
    directory_.write("infoview.txt", "notes");
    readHeader(directory_.write("wind.dat", ventosText()), InputKind::Ventos);
    EXPECT_FALSE(fileExists(directory_.file("infoview.txt")));
    EXPECT_TRUE(fileExists(directory_.file("wind.dat")));
}

class ClosedLibraries : public InfoView {
 protected:
    std::string place(const char* name) { return directory_.file(std::string(name) + ZG_LIBRARY_SUFFIX); }
    void lay(const char* name, const char* library) {
        std::filesystem::copy(library, place(name));
        useLibrariesBeside(directory_.path());
    }
};

TEST_F(ClosedLibraries, AHeaderLibraryBesideTheProgramAnswers) {
    lay("infoview_dll", ZG_INFOVIEW_STUB);
    readHeader(" " + directory_.write("any.dat", "") + "  ", InputKind::M3d);
    const InfoViewResult& r = modInfoViewDLL.result;
    EXPECT_EQ(r.IUTMZN, 32) << "the kind's code and two ones";
    EXPECT_EQ(modInfoViewDLL.HeaderStartTime, addSeconds(makeDate(2001, 2, 28), 23 * 3600 + 3599));
    EXPECT_EQ(modInfoViewDLL.HeaderEndTime, addSeconds(makeDate(2002, 1, 1), 61));
    EXPECT_EQ(modInfoViewDLL.HeaderTimeZone, "utc-0500");
    EXPECT_EQ(projection.PMAP, "LCC");
    EXPECT_EQ(projection.UTMHEM, "S");
    EXPECT_EQ(projection.DATUM, "NAS-C");
    EXPECT_EQ(projection.RLAT0, "40.5S");
    EXPECT_EQ(projection.RLON0, "97.25E");
    EXPECT_EQ(projection.XLAT1, "0N");
    EXPECT_EQ(projection.XLAT2, "0.5S");
    EXPECT_EQ(projection.FEAST, "100.5");
    EXPECT_EQ(projection.FNORTH, "-20");
    readHeader(directory_.file("bad.dat"), InputKind::Ventos);
    EXPECT_EQ(r.errorFlag, 7);
    EXPECT_EQ(r.errorText, "not mine: 1");
}

TEST_F(ClosedLibraries, AHeaderLibraryOpensFilesWithLettersOfOtherAlphabets) {
    lay("infoview_dll", ZG_INFOVIEW_STUB);
    for (const char* name : {"a b.dat", "Würzburg.dat", "Вена.dat"}) {
        readHeader(directory_.write(name, ""), InputKind::Ventos);
        EXPECT_EQ(modInfoViewDLL.result.errorText, "") << name;
        EXPECT_EQ(modInfoViewDLL.HeaderTimeZone, "utc-0500") << name;
    }
    readHeader(directory_.file("missing.dat"), InputKind::Ventos);
    EXPECT_EQ(modInfoViewDLL.result.errorText, "no such file");
}

TEST_F(ClosedLibraries, ATableLibraryBesideTheProgramAnswers) {
    lay("init", ZG_INIT_STUB);
    ASSERT_TRUE(ReadDatumTable());
    ASSERT_EQ(modDatums.datums.size(), 2U);
    EXPECT_EQ(modDatums.datums[1].continent, "MOON");
    EXPECT_EQ(modDatums.datums[1].ellipsoid, "Sphere");
    EXPECT_EQ(modDatums.datums[1].region, "Sea of-Tranquillity-2") << "trimmed pieces, joined";
    EXPECT_EQ(modDatums.datums[1].code, "MON-2");
}

TEST_F(ClosedLibraries, WhatIsNoLibraryCannotAnswer) {
    directory_.write(std::string("infoview_dll") + ZG_LIBRARY_SUFFIX, "no library");
    useLibrariesBeside(directory_.path());
    readHeader(directory_.write("wind.dat", ventosText()), InputKind::Ventos);
    EXPECT_EQ(modInfoViewDLL.HeaderStartTime, DateTime());
    EXPECT_EQ(modInfoViewDLL.result.errorFlag, 0);
    std::filesystem::remove(place("infoview_dll"));
    useLibrariesBeside(directory_.path());
    readHeader(directory_.file("wind.dat"), InputKind::Ventos);
    EXPECT_NE(modInfoViewDLL.HeaderStartTime, DateTime()) << "the program's own reader again";
}

}  // namespace
}  // namespace zg
