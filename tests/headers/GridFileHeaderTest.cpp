#include "headers/GridFileHeader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>

#include "base/Text.h"
#include "tests/headers/GridFiles.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

class GridFileHeader : public ::testing::Test {
 protected:
    InfoViewResult read(InputKind kind, const std::string& text) {
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
    const InfoViewResult r = read(InputKind::M3d, m3dText());
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
    const InfoViewResult r = read(InputKind::Ventos, ventosText("UTM NAR-C N 18 0 0 0 0 0 0"));
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
        read(InputKind::Ventos, ventosText("LL WGS-84 NONE NONE NONE NONE NONE NONE NONE NONE"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.IUTMZN, 0);
    for (const float value : {r.FEAST, r.FNORTH, r.RLAT0, r.RLON0, r.XLAT1, r.XLAT2}) EXPECT_EQ(value, 0);
}

TEST_F(GridFileHeader, AnglesMayEndInTheirHemisphere) {
    const InfoViewResult r = read(InputKind::Ventos, ventosText("PS NWS-84 NONE 0 0 0 40.5S 97.25w 33N 0E"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.RLAT0, -40.5F);
    EXPECT_EQ(r.RLON0, -97.25F);
    EXPECT_EQ(r.XLAT1, 33);
    EXPECT_EQ(read(InputKind::Ventos, ventosText("PS NWS-84 NONE 0 0 0 S 97W 33N 0")).errorText,
              "line 6 (projection): RLAT0 \"\" is not a number");
}

TEST_F(GridFileHeader, APolarMapWithoutItsParallelIsBroken) {
    for (const char* const parallel : {"0", "0N", "NONE"})
        EXPECT_EQ(read(InputKind::Ventos,
                       ventosText(std::string("PS NWS-84 NONE 0 0 0 90N 97W ") + parallel + " 0"))
                      .errorText,
                  "line 6 (projection): XLAT1 is missing: a polar map is true at it");
    const std::string model = replaced(m3dText(), "LCC", "PS");
    EXPECT_EQ(read(InputKind::M3d, model).errorFlag, 0);
    EXPECT_EQ(read(InputKind::M3d, replaced(model, " 33", " 0")).errorFlag, 1);
}

TEST_F(GridFileHeader, AFalseOriginHasNoLetter) {
    for (const char* const fields : {"500W 0", "500E 0", "0 5N", "5S 0"})
        EXPECT_NE(read(InputKind::Ventos,
                       ventosText(std::string("TTM NWS-84 NONE 0 ") + fields + " 0N 97W NONE NONE"))
                      .errorText,
                  "")
            << fields;
}

TEST_F(GridFileHeader, HourTwentyFourIsTheNextMidnight) {
    const InfoViewResult r =
        read(InputKind::Ventos, replaced(ventosText(), "2005 12 31 23 0", "2004 12 31 24 0"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.last.year, 2005);
    EXPECT_EQ(r.last.month, 1);
    EXPECT_EQ(r.last.day, 1);
    EXPECT_EQ(r.last.hour, 0);
}

TEST_F(GridFileHeader, CutAtEveryLineIsToldWithTheLine) {
    for (const InputKind kind : {InputKind::M3d, InputKind::Ventos}) {
        const std::string whole = kind == InputKind::M3d ? m3dText() : ventosText();
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
    // The last number may lose its last digit and still be a number.
    for (std::size_t i = 0; i + 4 < whole.size(); ++i)
        EXPECT_EQ(read(InputKind::Ventos, whole.substr(0, i)).errorFlag, 1) << i;
}

TEST_F(GridFileHeader, BrokenFieldsAreNamed) {
    const auto m3d = [&](const char* old, const char* fresh) {
        return read(InputKind::M3d, replaced(m3dText(), old, fresh)).errorText;
    };
    EXPECT_EQ(m3d("2.1", "3.0"), "line 1 (file type): version 3.0 is not known");
    EXPECT_EQ(m3d("\n1\n", "\nx\n"), "line 2 (number of comment lines): number \"x\" is not a number");
    EXPECT_EQ(m3d("LCC", "XYZ"), "line 5 (projection): projection \"XYZ\" is not known");
    EXPECT_EQ(m3d("-97.25", "-97,2x"), "line 5 (projection): RLON0 \"-97,2x\" is not a number");
    EXPECT_EQ(m3d("2005030706", "2005023006"), "line 7 (extracted period and grid): date does not exist");
    EXPECT_EQ(m3d("48 2 2 3", "0 2 2 3"),
              "line 7 (extracted period and grid): number of hours must be between 1 and 10000000");
    EXPECT_EQ(read(InputKind::Ventos, replaced(ventosText(), "2005 12 31", "2005 13 31")).errorText,
              "line 5 (period): month must be between 1 and 12");
}

TEST_F(GridFileHeader, EveryFieldOfAVentosFileGoesToItsValue) {
    const InfoViewResult r =
        read(InputKind::Ventos, ventosText("LCC NWS-84 S 18 100.5 -20 40.5 -97.25 33 45"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.PMAP, "LCC");
    EXPECT_EQ(r.DATUM, "NWS-84");
    EXPECT_EQ(r.UTMHEM, "S");
    EXPECT_EQ(r.IUTMZN, 18);
    EXPECT_EQ(r.FEAST, 100.5F);
    EXPECT_EQ(r.FNORTH, -20);
    EXPECT_EQ(r.RLAT0, 40.5F);
    EXPECT_EQ(r.RLON0, -97.25F);
    EXPECT_EQ(r.XLAT1, 33);
    EXPECT_EQ(r.XLAT2, 45);
    EXPECT_EQ(r.first.year, 2005);
    EXPECT_EQ(r.first.month, 3);
    EXPECT_EQ(r.first.day, 7);
    EXPECT_EQ(r.last.month, 12);
}

TEST_F(GridFileHeader, SecondThirtySixHundredIsTheNextHour) {
    const InfoViewResult r =
        read(InputKind::Ventos, replaced(ventosText(), "2005 12 31 23 0", "2005 12 30 23 3600"));
    EXPECT_EQ(r.errorFlag, 0) << r.errorText;
    EXPECT_EQ(r.last.day, 31);
    EXPECT_EQ(r.last.hour, 0);
    EXPECT_EQ(r.last.seconds, 0);
}

class GridFileFields : public GridFileHeader {
 protected:
    static std::string text(InputKind kind) { return kind == InputKind::M3d ? m3dText() : ventosText(); }

    /// The file with one line, counted from 1, rebuilt from its fields.
    template <typename Change>
    static std::string withLine(InputKind kind, int number, Change change) {
        const std::string whole = text(kind);
        const std::string before = firstLines(whole, number - 1);
        const std::string after = whole.substr(firstLines(whole, number).size());
        std::istringstream line(whole.substr(before.size(), whole.size() - before.size() - after.size()));
        std::vector<std::string> fields(std::istream_iterator<std::string>(line), {});
        change(fields);
        std::string made;
        for (const std::string& field : fields) made += field + " ";
        return before + made + "\n" + after;
    }

    /// The messages for a line that ends after no field, after one, and so on: "(period): year" for each
    /// field that is then missing.
    std::vector<std::string> missing(InputKind kind, int number) {
        std::vector<std::string> told;
        const std::string start = "line " + std::to_string(number) + " ";
        const std::string end = " is missing";
        for (std::size_t count = 0;; ++count) {
            const std::string error =
                read(kind, withLine(kind, number,
                                    [&](auto& fields) { fields.resize(std::min(count, fields.size())); }))
                    .errorText;
            if (!error.starts_with(start) || !error.ends_with(end)) return told;
            told.push_back(error.substr(start.size(), error.size() - start.size() - end.size()));
        }
    }

    std::string errorWith(InputKind kind, int number, std::size_t field, const std::string& value) {
        return read(kind, withLine(kind, number, [&](auto& fields) { fields[field] = value; })).errorText;
    }
};

using Names = std::vector<std::string>;

TEST_F(GridFileFields, AreNamedWhereOneOfAVentosFileIsMissing) {
    Names period;
    for (int i = 0; i < 2; ++i)
        for (const char* name : {"year", "month", "day", "hour", "seconds"})
            period.push_back(std::string("(period): ") + name);
    period.insert(period.end(), {"(period): time zone", "(period): step"});
    EXPECT_EQ(missing(InputKind::Ventos, 2), Names{"(number of comment lines): number"});
    EXPECT_EQ(missing(InputKind::Ventos, 5), period);
    Names map;
    for (const char* name :
         {"PMAP", "DATUM", "UTMHEM", "IUTMZN", "FEAST", "FNORTH", "RLAT0", "RLON0", "XLAT1", "XLAT2"})
        map.push_back(std::string("(projection): ") + name);
    EXPECT_EQ(missing(InputKind::Ventos, 6), map);
    EXPECT_EQ(missing(InputKind::Ventos, 7),
              (Names{"(grid): nx", "(grid): ny", "(grid): nz", "(grid): corner or cell size",
                     "(grid): corner or cell size", "(grid): corner or cell size"}));
    EXPECT_EQ(missing(InputKind::Ventos, 8), Names{}) << "they may go on on the next line";
}

TEST_F(GridFileFields, AreNamedWhereOneOfA3dDatFileIsMissing) {
    Names map;
    for (const char* name : {"projection", "RLAT0", "RLON0", "XLAT1", "XLAT2", "corner or cell size",
                             "corner or cell size", "corner or cell size", "nx", "ny", "nz"})
        map.push_back(std::string("(projection): ") + name);
    EXPECT_EQ(missing(InputKind::M3d, 5), map);
    Names extract;
    for (const char* name : {"first time", "number of hours", "nx", "ny", "nz"})
        extract.push_back(std::string("(extracted period and grid): ") + name);
    EXPECT_EQ(missing(InputKind::M3d, 7), extract);
    EXPECT_EQ(missing(InputKind::M3d, 8), Names(6, "(range of the extract): range"));
    EXPECT_EQ(missing(InputKind::M3d, 12), (Names{"(grid cell): i", "(grid cell): j"}));
    EXPECT_EQ(missing(InputKind::M3d, 15), (Names{"(grid cell): i", "(grid cell): j"}));
    EXPECT_EQ(read(InputKind::M3d, "3D.DAT\n").errorText, "line 1 (file type): version is missing");
}

TEST_F(GridFileFields, HaveTheirRanges) {
    struct Range {
        InputKind kind;
        int line;
        std::size_t field;
        std::int64_t least;
        std::int64_t most;
    };
    constexpr std::int64_t cells = 100'000;
    constexpr std::int64_t comments = 1'000'000;
    constexpr std::int64_t levels = 10'000;
    for (const Range& r :
         {Range{InputKind::M3d, 2, 0, 0, comments},

          Range{InputKind::M3d, 7, 1, 1, 10'000'000}, Range{InputKind::M3d, 7, 2, 1, cells},
          Range{InputKind::M3d, 7, 3, 1, cells}, Range{InputKind::M3d, 7, 4, 1, cells},
          Range{InputKind::M3d, 8, 2, 1, cells}, Range{InputKind::Ventos, 5, 0, 0, 9999},
          Range{InputKind::Ventos, 5, 1, 1, 12}, Range{InputKind::Ventos, 5, 2, 1, 31},
          Range{InputKind::Ventos, 5, 3, 0, 24}, Range{InputKind::Ventos, 5, 4, 0, 3600},
          Range{InputKind::Ventos, 5, 11, 1, 31'622'400}, Range{InputKind::Ventos, 7, 0, 1, cells},
          Range{InputKind::Ventos, 7, 1, 1, cells}, Range{InputKind::Ventos, 7, 2, 1, levels}}) {
        const auto with = [&](std::int64_t value) {
            return errorWith(r.kind, r.line, r.field, std::to_string(value));
        };
        const std::string told =
            " must be between " + std::to_string(r.least) + " and " + std::to_string(r.most);
        for (const std::int64_t value : {r.least - 1, r.most + 1})
            EXPECT_TRUE(with(value).ends_with(told)) << r.line << ' ' << r.field << ' ' << with(value);
        for (const std::int64_t value : {r.least, r.most})
            EXPECT_EQ(with(value).find("must be between"), std::string::npos) << with(value);
    }
    EXPECT_EQ(errorWith(InputKind::M3d, 7, 0, "100010099"),
              "line 7 (extracted period and grid): first time must be between 100010100 and 2147483647");
    EXPECT_EQ(errorWith(InputKind::M3d, 7, 0, "100010100"), "");
}

TEST_F(GridFileFields, AreQuotedByTheirFirstTwentyCharacters) {
    const std::string field = "abcdefghijklmnopqrst";
    EXPECT_EQ(errorWith(InputKind::M3d, 2, 0, field + "u"),
              "line 2 (number of comment lines): number \"" + field + "\" is not a number");
    EXPECT_EQ(errorWith(InputKind::M3d, 5, 0, field + "u"),
              "line 5 (projection): projection \"" + ucase(field) + "\" is not known");
    EXPECT_EQ(errorWith(InputKind::M3d, 1, 1, field + "u"),
              "line 1 (file type): version " + field + " is not known");
}

TEST_F(GridFileHeader, OtherStylesAreRead) {
    const auto first = [&](InputKind kind, const std::string& text) {
        const InfoViewResult r = read(kind, text);
        EXPECT_EQ(r.errorFlag, 0) << r.errorText;
        return std::pair(r.PMAP, r.first.year * 100 + r.first.day);
    };
    const std::pair<std::string, int> lambert("LCC", 2005 * 100 + 7);
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), "3D.DAT", " 3d.dat")), lambert);
    EXPECT_EQ(first(InputKind::Ventos, replaced(ventosText(), "VENTOS.DAT", "Ventos.dat")), lambert);
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), "\n1\n", "\n1-Comment\n")), lambert);
    EXPECT_EQ(first(InputKind::Ventos, replaced(ventosText(), "\r\n2\r\n", "\r\n2 - Comments\r\n")), lambert);
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), " -98 -97 40 41", "")), lambert);
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), "LCC", "lcc")), lambert);
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), "1 1 0 0 0 0", "1 1 0 0 2")), lambert)
        << "no flag is used";
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), " 40 40 30\n", " many many 30\n")), lambert);
    EXPECT_EQ(first(InputKind::M3d, replaced(m3dText(), "0.98", "top")), lambert);
    EXPECT_EQ(first(InputKind::Ventos, replaced(ventosText(), "LCC", "lcc")), lambert);
    EXPECT_EQ(first(InputKind::Ventos, replaced(ventosText(), "\r\n0 20\r\n", "\r\n0\r\n\r\n 20\r\n")),
              lambert);
    EXPECT_EQ(first(InputKind::Ventos, replaced(ventosText(), "2005 3 7", "5 3 7")), lambert)
        << "two digits of the year";
}

TEST_F(GridFileHeader, WhatTheProcessorCouldNotReadIsRefused) {
    const auto ventos = [&](const char* old, const char* fresh) {
        return read(InputKind::Ventos, replaced(ventosText(), old, fresh)).errorText;
    };
    EXPECT_EQ(ventos("UTC-0500", "EST"), "line 5 (period): time zone \"EST\" is no zone such as UTC-0500");
    EXPECT_EQ(ventos("LCC", "XYZ"), "line 6 (projection): PMAP \"XYZ\" is not known");
    EXPECT_EQ(ventos("LCC NWS-84 NONE 0", "UTM NWS-84 N 0"),
              "line 6 (projection): IUTMZN must be between 1 and 60");
    EXPECT_EQ(ventos("20 12", "20 0"), "line 7 (grid): cell size must be above 0");
    EXPECT_EQ(ventos("2 2 1", "2.5 2 1"), "line 7 (grid): nx \"2.5\" is not a whole number");
    EXPECT_EQ(ventos("-100.5 20 12", "-1,000.5 20 12"),
              "line 7 (grid): corner or cell size \"-1,000.5\" is not a number");
    EXPECT_EQ(ventos("0 20\r\n", "20 20\r\n"), "line 8 (cell face heights): height does not rise");
    EXPECT_EQ(ventos("0 20\r\n", "0 20 40\r\n"),
              "line 8 (cell face heights): height is one more than nz + 1");
    EXPECT_EQ(ventos("0 20\r\n", "0\r\n"), "line 9 (cell face heights): the file ends here");
    const auto m3d = [&](const char* old, const char* fresh) {
        return read(InputKind::M3d, replaced(m3dText(), old, fresh)).errorText;
    };
    EXPECT_EQ(m3d("20 12 40", "20 -1 40"), "line 5 (projection): cell size must be above 0");
    EXPECT_EQ(m3d("1 1 2 2 1 3", "1 1 2 2 1 4"),
              "line 8 (range of the extract): range does not agree with nx, ny and nz of the line before");
}

TEST_F(GridFileHeader, OtherFilesAreRefused) {
    EXPECT_EQ(read(InputKind::Ventos, m3dText()).errorText,
              "line 1 (file type): the file does not begin with VENTOS.DAT");
    EXPECT_EQ(read(InputKind::M3d, "3D.DATA 2.1\n").errorText,
              "line 1 (file type): the file does not begin with 3D.DAT");
    EXPECT_EQ(read(InputKind::M3d, "").errorText, "line 1 (file type): the file does not begin with 3D.DAT");
    EXPECT_EQ(read(InputKind::M3d, std::string(100'000, '\0')).errorFlag, 1);
    InfoViewResult r;
    readGridFileHeader(directory_.path(), InputKind::M3d, r);
    EXPECT_EQ(r.errorText, "Path/File access error") << "a directory";
    r = {};
    readGridFileHeader(directory_.file("no"), InputKind::M3d, r);
    EXPECT_EQ(r.errorText, "File not found");
}

}  // namespace
}  // namespace zg
