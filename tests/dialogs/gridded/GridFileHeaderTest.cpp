#include "dialogs/gridded/GridFileHeader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/dialogs/gridded/GridFiles.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class GridFileHeader : public ::testing::Test {
 protected:
    InfoViewResult read(GridKind kind, const std::string& text) {
        InfoViewResult result;
        readGridFileHeader(directory_.write("grid.dat", text), kind, result);
        return result;
    }
    static std::string replaced(std::string text, const std::string& old, const std::string& fresh) {
        return text.replace(text.find(old), old.size(), fresh);
    }

    TempDirectory directory_;
};

TEST_F(GridFileHeader, OfA3dDatFile) {
    const InfoViewResult r = read(GridKind::M3d, m3dText());
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.PMAP, "LCC");
    EXPECT_EQ(r.RLAT0, 40.5F);
    EXPECT_EQ(r.RLON0, -97.25F);
    EXPECT_EQ(r.XLAT1, 33);
    EXPECT_EQ(r.XLAT2, 45);
    EXPECT_EQ(r.FEAST, 0);
    EXPECT_EQ(r.DATUM, "NWS-84");
    EXPECT_EQ(r.timeZone, "UTC+0000");
    EXPECT_EQ(r.first.year, 2005);
    EXPECT_EQ(r.first.month, 3);
    EXPECT_EQ(r.first.day, 7);
    EXPECT_EQ(r.first.hour, 6);
    EXPECT_EQ(r.last.month, 3);
    EXPECT_EQ(r.last.day, 9);
    EXPECT_EQ(r.last.hour, 6);
}

TEST_F(GridFileHeader, OfAVentosFile) {
    const InfoViewResult r = read(GridKind::Ventos, ventosText("UTM NAR-C N 18 0 0 0 0 0 0"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.PMAP, "UTM");
    EXPECT_EQ(r.UTMHEM, "N");
    EXPECT_EQ(r.IUTMZN, 18);
    EXPECT_EQ(r.DATUM, "NAR-C");
    EXPECT_EQ(r.timeZone, "UTC-0500");
    EXPECT_EQ(r.first.hour, 6);
    EXPECT_EQ(r.first.seconds, 1815);
    EXPECT_EQ(r.last.year, 2005);
    EXPECT_EQ(r.last.day, 31);
    EXPECT_EQ(r.last.hour, 23);
    EXPECT_EQ(r.last.seconds, 0);
}

TEST_F(GridFileHeader, NoneStandsForWhatIsNotUsed) {
    const InfoViewResult r =
        read(GridKind::Ventos, ventosText("LL WGS-84 NONE NONE NONE NONE NONE NONE NONE NONE"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.IUTMZN, 0);
    EXPECT_EQ(r.FEAST, 0);
    EXPECT_EQ(r.XLAT2, 0);
}

TEST_F(GridFileHeader, AnglesMayEndInTheirHemisphere) {
    const InfoViewResult r = read(GridKind::Ventos, ventosText("PS NWS-84 NONE 0 0 0 40.5S 97.25w 33N 0E"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.RLAT0, -40.5F);
    EXPECT_EQ(r.RLON0, -97.25F);
    EXPECT_EQ(r.XLAT1, 33);
    EXPECT_EQ(read(GridKind::Ventos, ventosText("PS NWS-84 NONE 0 0 0 S 97W 33N 0")).errorText,
              "line 6 (projection): RLAT0 \"\" is not a number");
}

TEST_F(GridFileHeader, APolarMapWithoutItsParallelIsBroken) {
    for (const char* const parallel : {"0", "0N", "NONE"})
        EXPECT_EQ(
            read(GridKind::Ventos, ventosText(std::string("PS NWS-84 NONE 0 0 0 90N 97W ") + parallel + " 0"))
                .errorText,
            "line 6 (projection): XLAT1 is missing: a polar map is true at it");
    const std::string model = replaced(m3dText(), "LCC", "PS");
    EXPECT_EQ(read(GridKind::M3d, model).errorFlag, 0);
    EXPECT_EQ(read(GridKind::M3d, replaced(model, " 33", " 0")).errorFlag, 1);
}

TEST_F(GridFileHeader, AFalseOriginHasNoLetter) {
    for (const char* const fields : {"500W 0", "500E 0", "0 5N", "5S 0"})
        EXPECT_NE(read(GridKind::Ventos,
                       ventosText(std::string("TTM NWS-84 NONE 0 ") + fields + " 0N 97W NONE NONE"))
                      .errorText,
                  "")
            << fields;
}

TEST_F(GridFileHeader, HourTwentyFourIsTheNextMidnight) {
    const InfoViewResult r =
        read(GridKind::Ventos, replaced(ventosText(), "2005 12 31 23 0", "2004 12 31 24 0"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.last.year, 2005);
    EXPECT_EQ(r.last.month, 1);
    EXPECT_EQ(r.last.day, 1);
    EXPECT_EQ(r.last.hour, 0);
}

TEST_F(GridFileHeader, CutAtEveryLineIsToldWithTheLine) {
    for (const GridKind kind : {GridKind::M3d, GridKind::Ventos}) {
        const std::string whole = kind == GridKind::M3d ? m3dText() : ventosText();
        const int lines = static_cast<int>(std::count(whole.begin(), whole.end(), '\n'));
        for (int i = 0; i < lines; ++i) {
            const InfoViewResult r = read(kind, firstLines(whole, i));
            EXPECT_EQ(r.errorFlag, 1) << i;
            EXPECT_EQ(r.errorText.substr(0, 5 + std::to_string(i + 1).size()),
                      "line " + std::to_string(i + 1))
                << r.errorText;
            EXPECT_EQ(r.PMAP, "") << "nothing is kept of a broken header";
        }
        EXPECT_EQ(read(kind, whole).errorFlag, 0);
    }
}

TEST_F(GridFileHeader, CutAtEveryByteNeverPassesAsWhole) {
    const std::string whole = ventosText();
    // The last number may lose its last digit and still be one.
    for (std::size_t i = 0; i + 4 < whole.size(); ++i)
        EXPECT_EQ(read(GridKind::Ventos, whole.substr(0, i)).errorFlag, 1) << i;
}

TEST_F(GridFileHeader, BrokenFieldsAreNamed) {
    const auto m3d = [&](const char* old, const char* fresh) {
        return read(GridKind::M3d, replaced(m3dText(), old, fresh)).errorText;
    };
    EXPECT_EQ(m3d("2.1", "3.0"), "line 1 (file type): version 3.0 is not known");
    EXPECT_EQ(m3d("\n1\n", "\nx\n"), "line 2 (number of comment lines): number \"x\" is not a number");
    EXPECT_EQ(m3d("1 1 0 0 0 0", "1 1 0 0 0"), "line 4 (output flags): flag is missing");
    EXPECT_EQ(m3d("1 1 0 0 0 0", "1 1 0 0 0 2"), "line 4 (output flags): flag must be between 0 and 1");
    EXPECT_EQ(m3d("LCC", "XYZ"), "line 5 (projection): projection \"XYZ\" is not known");
    EXPECT_EQ(m3d("-97.25", "-97,2x"), "line 5 (projection): RLON0 \"-97,2x\" is not a number");
    EXPECT_EQ(m3d("2005030706", "2005023006"), "line 7 (extracted period and grid): date does not exist");
    EXPECT_EQ(m3d("48 2 2 3", "0 2 2 3"),
              "line 7 (extracted period and grid): number of hours must be between 1 and 10000000");
    EXPECT_EQ(read(GridKind::Ventos, replaced(ventosText(), "2005 12 31", "2005 13 31")).errorText,
              "line 5 (period): month must be between 1 and 12");
}

TEST_F(GridFileHeader, OtherFilesAreRefused) {
    EXPECT_EQ(read(GridKind::Ventos, m3dText()).errorText,
              "line 1 (file type): the file does not begin with VENTOS.DAT");
    EXPECT_EQ(read(GridKind::M3d, "3D.DATA 2.1\n").errorText,
              "line 1 (file type): the file does not begin with 3D.DAT");
    EXPECT_EQ(read(GridKind::M3d, "").errorText, "line 1 (file type): the file does not begin with 3D.DAT");
    EXPECT_EQ(read(GridKind::M3d, std::string(100'000, '\0')).errorFlag, 1);
    InfoViewResult r;
    readGridFileHeader(directory_.path(), GridKind::M3d, r);
    EXPECT_EQ(r.errorText, "Path/File access error") << "a directory";
    r = {};
    readGridFileHeader(directory_.file("no"), GridKind::M3d, r);
    EXPECT_EQ(r.errorText, "File not found");
}

}  // namespace
}  // namespace zg
