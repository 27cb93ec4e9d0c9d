// Whole control files of every dialog, compared byte for byte with the expected ones in control/.

#include "processing/ControlFile.h"

#include <gtest/gtest.h>

#include "base/Lines.h"
#include "tests/support/Raises.h"
#include "tests/support/TempDirectory.h"

namespace zg {
namespace {

ControlFile common(InputKind type, std::vector<std::string> files) {
    ControlFile v;
    v.type = type;
    v.title = "  A title ";
    v.base = "base_20050307-20051231";
    v.inputFiles = std::move(files);
    v.IBYR = "2005";
    v.IBMO = "3";
    v.IBDY = "7";
    v.IBHR = "6";
    v.IBSEC = "1815";
    v.IEYR = "2005";
    v.IEMO = "12";
    v.IEDY = "31";
    v.IEHR = "23";
    v.IESEC = "0";
    v.ABTZ = "UTC-0500";
    v.NSECDT = "3600";
    v.WSBIN = "0.5,1.8,3.3,5.4,8.5,10.8";
    v.seasonNames = {"Winter", "Spring", "Summer", "Fall"};
    v.MSN = "1,1,2,2,2,3,3,3,4,4,4,1";
    v.METSIM = "2";
    v.MPROF = "2";
    v.MCELL = "0";
    return v;
}

void expectFile(const ControlFile& values, const char* name) {
    const std::string expected =
        readWholeFile(std::string(ZG_SOURCE_DIR "/tests/processing/control/") + name);
    const std::string actual = controlFileBytes(values);
    if (actual == expected) return;
    std::size_t at = 0;
    while (at < actual.size() && at < expected.size() && actual[at] == expected[at]) ++at;
    const std::size_t from = at < 100 ? 0 : at - 100;
    ADD_FAILURE() << name << " differs at byte " << at << "\nexpected: " << expected.substr(from, 200)
                  << "\nactual:   " << actual.substr(from, 200);
}

TEST(ControlFile, OfSurfHasTheNumbersOfTheSelectedRows) {
    ControlFile v = common(InputKind::Surf, {"/data/my surf.dat "});
    v.outputs = {{"2", "Two_SURF", "A titleTwo", "1002, 0, 0", "10"},
                 {"5", "base-1005_SURF", "A title", "1005, 0, 0", "10"}};
    expectFile(v, "surf.inp");
}

TEST(ControlFile, OfSurfWithoutTitleAndOneSeason) {
    ControlFile v = common(InputKind::Surf, {"s.dat"});
    v.title = "";
    v.seasonNames = {"All"};
    v.outputs = {{"1", "One", "One", "1001, 0, 0", "10"}, {"3", "base-3", "", "3, 0, 0", "10"}};
    expectFile(v, "surf_untitled.inp");
}

TEST(ControlFile, OfUpHasAnOutputAHeightAndTwelveSeasons) {
    ControlFile v = common(InputKind::Up, {"u.dat"});
    v.seasonNames.clear();
    for (int i = 1; i <= 12; ++i) v.seasonNames.push_back("S" + std::to_string(i));
    int id = 0;
    for (const char* height : {"10", "50", "100.5"})
        v.outputs.push_back(
            {std::to_string(++id), std::string("UP_") + height + "m", "A title", "4417, 0, 0", height});
    expectFile(v, "up.inp");
}

TEST(ControlFile, OfTheKindsWithOneOutput) {
    for (const auto& [type, name] :
         {std::pair{InputKind::MonitorW, "monitorw.inp"}, std::pair{InputKind::AermSfc, "aermsfc.inp"},
          std::pair{InputKind::AermPfl, "aermpfl.inp"}, std::pair{InputKind::Csv, "csv.inp"}}) {
        ControlFile v = common(type, {"m.csv"});
        v.tableKeys = {{"CSVSEP", "COMMA"}, {"CSVDEC", "POINT"}, {"CSVHEAD", "1"},     {"CSVNAME", "1"},
                       {"CSVTIME", "1"},    {"CSVFORM", "YMD"},  {"CSVSTMP", "BEGIN"}, {"CSVLEN", "3600"},
                       {"CSVSPD", "2"},     {"CSVUNIT", "M/S"},  {"CSVDIR", "3"}};
        v.title = "";
        v.seasonNames = {"Wet", "Dry"};
        v.outputs = {{"1", "out", "", "00072, 0, 0", "10"}};
        expectFile(v, name);
    }
}

TEST(ControlFile, OfTsfHasNoOutputsButAName) {
    ControlFile v = common(InputKind::Tsf, {"t.tsf"});
    v.roseName = "rose_out";
    expectFile(v, "tsf.inp");
}

TEST(ControlFile, OfTsfLeavesOutTheOutputsThatADialogGives) {
    ControlFile v = common(InputKind::Tsf, {"t.tsf"});
    v.roseName = "rose_out";
    v.outputs = {{"1", "rose_out", "A title", "72503, 0, 0", "10"}};
    expectFile(v, "tsf.inp");
}

TEST(ControlFile, AFieldThatLooksLikeAPlaceholderIsWrittenAsItStands) {
    ControlFile v = common(InputKind::Surf, {"{BASE}.dat"});
    v.title = "{MSN} [per output]";
    v.outputs = {{"1", "{ID}", "{HEIGHT}", "{STATION}, 0, 0", "{TITLE}"}};
    const std::string bytes = controlFileBytes(v);
    for (const char* line : {"\r\n{MSN} [per output]\r\n", "METINP = {BASE}.dat !", "TSFOUT = {ID} !",
                             "LOCMET = {HEIGHT} !", "MET = {STATION}, 0, 0, {TITLE}, -1., -1., -1. !"})
        EXPECT_NE(bytes.find(line), std::string::npos) << line;
}

/// The keys of the projection that are active, in file order.
std::string activeProjection(const std::string& map) {
    ControlFile v = common(InputKind::Ventos, {"a.dat"});
    v.projection = {map, "fe", "fn", "zone", "hem", "lat0", "lon0", "lat1", "lat2", "WGS-84"};
    const std::string bytes = controlFileBytes(v);
    std::string keys;
    for (const std::string key : {"FEAST  = fe", "FNORTH = fn", "IUTMZN = zone", "UTMHEM = hem",
                                  "RLAT0 = lat0", "RLON0 = lon0", "XLAT1 = lat1", "XLAT2 = lat2"})
        if (bytes.find("! " + key + " !\r\n") != std::string::npos)
            keys += (keys.empty() ? "" : " ") + key.substr(0, key.find(' '));
    EXPECT_NE(bytes.find("! PMAP = " + map + " !\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("! DATUM = WGS-84 !\r\n"), std::string::npos);
    return keys;
}

TEST(ControlFile, OfAGridActivatesTheKeysOfItsProjection) {
    EXPECT_EQ(activeProjection("LL"), "");
    EXPECT_EQ(activeProjection("UTM"), "IUTMZN UTMHEM");
    EXPECT_EQ(activeProjection("LCC"), "FEAST FNORTH RLAT0 RLON0 XLAT1 XLAT2");
    EXPECT_EQ(activeProjection("TTM"), "FEAST FNORTH RLAT0 RLON0");
    EXPECT_EQ(activeProjection("LAZA"), "FEAST FNORTH RLAT0 RLON0");
    EXPECT_EQ(activeProjection("PS"), "RLAT0 RLON0 XLAT1");
    EXPECT_EQ(activeProjection("EM"), "RLAT0 RLON0");
}

TEST(ControlFile, OfAGridInLatitudeAndLongitude) {
    ControlFile v = common(InputKind::Ventos, {"a.dat", "b.dat"});
    v.projection = {"LL", "1", "2", "3", "N", "4N", "5W", "6N", "7N", "WGS-84"};
    v.outputs = {{"1", "St_VENTOS", "ST1", "-74.5, 41.25", "10"}};
    expectFile(v, "ventos_ll.inp");
}

TEST(ControlFile, OfAGridInUtmActivatesZoneAndHemisphereOnly) {
    ControlFile v = common(InputKind::Ventos, {"a.dat"});
    v.projection = {"UTM", "1", "2", "18", "S", "4N", "5W", "6N", "7N", "NAR-C"};
    expectFile(v, "ventos_utm.inp");
}

TEST(ControlFile, OfAModelGridInItsProjection) {
    ControlFile v = common(InputKind::M3d, {"3d.dat"});
    v.projection = {"LCC", "0.0", "12.5", "3", "N", "40N", "97W", "33N", "45N", "NWS-84"};
    v.outputs = {{"1", "x", "A title", "3.2, 15.88", "10"}, {"2", "y", "A title", "4, 5", "20"}};
    expectFile(v, "m3d_lcc.inp");
}

TEST(ControlFile, OfAModelGridByCells) {
    ControlFile v = common(InputKind::M3d, {"3d.dat"});
    v.title = "";
    v.MCELL = "1";
    v.projection.PMAP = "NONE";
    v.outputs = {{"1", "x", "", "3.2, 15.88", "10"}};
    expectFile(v, "m3d_cell.inp");
}

TEST(ControlFile, IsWrittenUnderItsBaseAndReplacesAnOldOne) {
    const TempDirectory directory;
    directory.write("base_20050307-20051231_tempoline.inp", std::string(100'000, 'x'));
    const ControlFile v = common(InputKind::Tsf, {"t\xE9.tsf"});
    WriteControlFile(directory.path() + "/", v);
    EXPECT_EQ(directory.read("base_20050307-20051231_tempoline.inp"), controlFileBytes(v));
    EXPECT_NE(controlFileBytes(v).find("METINP = t\xE9.tsf !"), std::string::npos) << "one byte a character";
    EXPECT_RAISES(76, "Path not found", WriteControlFile(directory.file("no/"), v));
}

}  // namespace
}  // namespace zg
