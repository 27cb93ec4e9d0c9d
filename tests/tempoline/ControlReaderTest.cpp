#include "tempoline/ControlReader.h"

#include <gtest/gtest.h>

#include <regex>

#include "base/Lines.h"
#include "tempoline/ControlLexer.h"
#include "tempoline/ListingName.h"
#include "tests/tempoline/TempolineSupport.h"

namespace zg::tempoline {

namespace {

std::string written(const std::string& name) {
    return readWholeFile(std::string(ZG_SOURCE_DIR) + "/tests/processing/control/" + name);
}

Control controlOf(const std::string& name) { return readControl(written(name), name); }

std::string refused(const std::string& text) {
    return failureOf([&] { readControl(text, "c.inp"); }, ExitStatus::BadControl);
}

/// The text with another value for the key.
std::string with(const std::string& text, const std::string& key, const std::string& value) {
    const std::regex pattern("! " + key + "( *)=[^!\\r\\n]*!");
    EXPECT_TRUE(std::regex_search(text, pattern)) << key;
    return std::regex_replace(text, pattern, "! " + key + " = " + value + " !",
                              std::regex_constants::format_first_only);
}

}  // namespace

TEST(ControlReader, TakesWhatTheDialogsWrite) {
    for (const char* const name :
         {"aermpfl.inp", "aermsfc.inp", "m3d_cell.inp", "m3d_lcc.inp", "monitorw.inp", "surf.inp",
          "surf_untitled.inp", "tsf.inp", "up.inp", "ventos_ll.inp"}) {
        const Control control = controlOf(name);
        EXPECT_EQ(control.listing, "base_20050307-20051231_tempoline.lst") << name;
        EXPECT_EQ(control.begin, momentOf(2005, 3, 7, 6, 1815)) << name;
        EXPECT_EQ(control.end, momentOf(2005, 12, 31, 23, 0)) << name;
        EXPECT_EQ(control.zoneOffset, -5 * secondsAnHour) << name;
        EXPECT_EQ(control.rules.classLimits[5], 10.8) << name;
        EXPECT_EQ(control.rules.hourRanges.size(), 4U) << name;
        EXPECT_EQ(control.rules.hourRanges[3].last, 0) << name;
    }
}

TEST(ControlReader, AGriddedRunWithoutALocationIsRefused) {
    EXPECT_EQ(refused(written("ventos_utm.inp")),
              "c.inp:43: NTSFOUT: 0 outputs are asked for, and at least one is needed");
}

TEST(ControlReader, StationsOfSurf) {
    const Control control = controlOf("surf.inp");
    EXPECT_EQ(control.title, "A title");
    EXPECT_EQ(control.inputs, std::vector<std::string>{"/data/my surf.dat"});
    ASSERT_EQ(control.outputs.size(), 2U);
    EXPECT_EQ(control.outputs[0].id, 2);
    EXPECT_EQ(control.outputs[0].name, "Two_SURF");
    EXPECT_EQ(control.outputs[0].station, "1002");
    EXPECT_EQ(control.outputs[0].location, "A titleTwo");
    EXPECT_EQ(control.outputs[1].station, "1005");
    EXPECT_EQ(control.outputs[1].height, 10);
}

TEST(ControlReader, ProjectionAndCells) {
    const Control lcc = controlOf("m3d_lcc.inp");
    EXPECT_EQ(lcc.map.projection, "LCC");
    EXPECT_EQ(lcc.map.longitude0, -97);
    EXPECT_EQ(lcc.map.latitude2, 45);
    EXPECT_EQ(lcc.map.falseNorthing, 12.5);
    EXPECT_EQ(lcc.outputs[0].x, 3.2);
    EXPECT_EQ(lcc.outputs[1].height, 20);
    EXPECT_TRUE(controlOf("m3d_cell.inp").cellCoordinates);
    EXPECT_EQ(controlOf("ventos_ll.inp").inputs.size(), 2U);
}

TEST(ControlReader, MonthsOfSeasonsThatThereAreNotAreToldAndLeftOut) {
    const Control control = controlOf("aermsfc.inp");
    EXPECT_EQ(control.rules.seasons.size(), 2U);
    ASSERT_EQ(control.warnings.size(), 3U);
    EXPECT_EQ(control.warnings[1], "MSN: no season has the number 3; its months are in no season's rose");
}

TEST(ControlReader, EveryCutIsRefusedUntilAllIsThere) {
    const std::string text = written("up.inp");
    const std::size_t lastNeeded = text.rfind("! HR =");
    for (std::size_t end = text.find('\n'); end != std::string::npos && end < lastNeeded;
         end = text.find('\n', end + 1))
        EXPECT_NE(refused(text.substr(0, end + 1)), "");
}

TEST(ControlReader, AValueMayHoldAnExclamationMark) {
    const std::string text = with(written("aermsfc.inp"), "METINP", "/data/wow!/a ! b.sfc");
    EXPECT_EQ(readControl(text, "c.inp").inputs[0], "/data/wow!/a ! b.sfc");
}

TEST(ControlReader, TheTitleIsNeverAnAssignment) {
    std::string text = written("surf.inp");
    text.replace(text.find("A title"), 7, "! MDATA = UP !");
    const Control control = readControl(text, "c.inp");
    EXPECT_EQ(control.kind, InputKind::Surf);
    EXPECT_EQ(control.title, "! MDATA = UP !");
}

TEST(ControlReader, HandWrittenForms) {
    std::string text = written("aermsfc.inp");
    text = with(text, "WSBIN", "1 2 3 4 5 6");
    text = with(text, "IEHR", "24");
    std::string lower;
    for (const char c : text) {
        if (c != '\r') lower += c;
    }
    const Control control =
        readControl(std::regex_replace(lower, std::regex("! IBYR +="), "!ibyr="), "c.inp");
    EXPECT_EQ(control.rules.limitTexts[5], "6");
    EXPECT_EQ(control.end, momentOf(2006, 1, 1, 0, 0));
}

TEST(ControlReader, ClassLimitsMayBeEqualOrBelowZeroButNotFall) {
    const std::string text = written("aermsfc.inp");
    const auto limitsOf = [&](const std::string& value) {
        return readControl(with(text, "WSBIN", value), "c.inp").rules.classLimits;
    };
    EXPECT_EQ(limitsOf("1, 1, 2, 3, 4, 5"), (std::array<double, classCount>{1, 1, 2, 3, 4, 5}));
    EXPECT_EQ(limitsOf("-0.5, 0, 2, 3, 4, 4"), (std::array<double, classCount>{-0.5, 0, 2, 3, 4, 4}));
    EXPECT_EQ(refused(with(text, "WSBIN", "1, 2, 1, 3, 4, 5")).substr(11),
              "WSBIN: the speeds must not fall: \"1\"");
    EXPECT_NE(refused(with(text, "WSBIN", "0, inf, inf, inf, inf, inf")), "");
}

TEST(ControlReader, KeysOfAGroupStandOnceInIt) {
    const std::string text = written("surf_untitled.inp");
    const auto changed = [&](const std::string& line, const std::string& lines) {
        return std::regex_replace(text, std::regex(line), lines, std::regex_constants::format_first_only);
    };
    const std::string id = "! TSFID  = 3 !";
    const std::string neither = "TSFID: TSFID 3 has neither TSFOUT nor MET after it";
    EXPECT_EQ(refused(changed(id, id + "\n" + id)), "c.inp:83: " + neither);
    EXPECT_EQ(refused(changed(id, "! TSFID = x !\n" + id)), "c.inp:83: TSFID: \"x\" is no whole number");
    EXPECT_EQ(refused(text + id + "\n").substr(11), neither);
    const std::string place = "! LOCMET = One !";
    EXPECT_EQ(refused(changed(place, place + "\n" + place)),
              "c.inp:196: LOCMET: TSFID 1 has a LOCMET before");
    EXPECT_EQ(refused(changed("! TSFOUT = One !", place + "\n! TSFOUT = One !")),
              "c.inp:82: TSFOUT: TSFID 1 has a LOCMET, which belongs to a MET");
    const std::string season = "! IDSEAS   = 1 !";
    EXPECT_EQ(refused(changed(season, "! IDSEAS = 9 !\n" + season)),
              "c.inp:443: IDSEAS: no SEASNAME follows it");
    EXPECT_EQ(refused(changed(season, "! IDSEAS = x !\n" + season)),
              "c.inp:443: IDSEAS: \"x\" is no whole number");
    EXPECT_EQ(refused(text + "! IDSEAS = 9 !\n").substr(11), "IDSEAS: no SEASNAME follows it");
}

TEST(ControlReader, BadValuesAreNamed) {
    const std::string text = written("m3d_lcc.inp");
    EXPECT_EQ(refused(with(text, "PMAP", "XYZ")), "c.inp:261: PMAP: \"XYZ\" is no known projection");
    EXPECT_EQ(refused(with(text, "DATUM", "ABC-9")),
              "c.inp:340: DATUM: \"ABC-9\" is no datum code that is known here");
    EXPECT_EQ(refused(with(text, "RLAT0", "91N")), "c.inp:289: RLAT0: \"91N\" is out of range");
    EXPECT_EQ(refused(with(text, "RLON0", "west")), "c.inp:290: RLON0: \"WEST\" is no number");
    EXPECT_EQ(refused(with(text, "METSIM", "3")), "c.inp:180: METSIM: 3 is not between 1 and 2");
    EXPECT_EQ(refused(with(text, "MET", "1, 2")), "c.inp:196: MET: found 2 values, 6 are needed");
    EXPECT_EQ(refused(with(text, "MET", "1, 2, -1., -1., -1., -1.")),
              "c.inp:196: MET: a height for the wind is needed");
    EXPECT_EQ(refused(with(text, "NSECDT", "")), "c.inp:168: NSECDT: the value is missing");
}

TEST(ControlReader, WhatNoRunCanDoIsSaid) {
    const std::string text = written("monitorw.inp");
    const auto toldFor = [&](const char* key, const char* value) {
        const std::string told = refused(with(text, key, value));
        return told.substr(told.find(": ") + 2);
    };
    EXPECT_EQ(toldFor("NAQINP", "1"), "NAQINP: air quality input is not supported");
    for (const std::string kind : {"MONITORC", "POSTIME", "FUMAROL"})
        EXPECT_EQ(toldFor("MDATA", kind.c_str()),
                  "MDATA: " + kind + " is air quality input, which is not supported");
    EXPECT_EQ(toldFor("MDATA", "m2d"), "MDATA: M2D input is not supported");
    EXPECT_EQ(toldFor("MDATA", "surface"), "MDATA: \"SURFACE\" is no known type of input");
    EXPECT_EQ(toldFor("MROSE", "2"), "MROSE: pollutant roses (2) are not supported");
}

TEST(ControlReader, WhatIsNotSupportedIsSaidBeforeItsKeysAreUnknown) {
    std::string text = with(written("monitorw.inp"), "MDATA", "MONITORC");
    text.insert(text.find("     Air Quality data - provide NTSFOUT"), "     ! AQ = 1, 0, 0 !\r\n");
    EXPECT_EQ(refused(text), "c.inp:140: MDATA: MONITORC is air quality input, which is not supported");
    EXPECT_EQ(refused(with(text, "MDATA", "MONITORW")), "c.inp:196: AQ: there is no such key");
}

TEST(ControlReader, ThePeriodMustHoldASoundNumberOfSteps) {
    const std::string text = written("aermsfc.inp");
    EXPECT_EQ(refused(with(with(text, "IEYR", "2005"), "IEMO", "1")),
              "c.inp:152: IEYR: the period ends before it begins");
    EXPECT_EQ(refused(with(with(text, "IEYR", "9999"), "NSECDT", "1")).substr(0, 19), "c.inp:165: NSECDT: ");
    const Control control = readControl(with(text, "NSECDT", "7200"), "c.inp");
    ASSERT_FALSE(control.warnings.empty());
    EXPECT_EQ(control.warnings[0], "the last 1785 seconds of the period are no whole step and are left out");
}

TEST(ControlLexer, FindsTheListingInABrokenFile) {
    EXPECT_EQ(freeListingName("x\ny\n! TSFLST = a.lst !\n! MDATA = ", "c.inp"), "a.lst");
    EXPECT_EQ(freeListingName("x\ny\n! TSFLST = \n! TSFLST = a.lst !", "c.inp"), "a.lst");
    EXPECT_EQ(freeListingName("x\ny\n! TSFLST = a.lst", "c.inp"), "TEMPOLINE.LST");
    EXPECT_EQ(freeListingName("x\ny\n! TSFLST = ../a.lst !", "c.inp"), "TEMPOLINE.LST");
    EXPECT_EQ(freeListingName("", "c.inp"), "TEMPOLINE.LST");
}

TEST(ControlLexer, TheTitleNamesNoListing) {
    EXPECT_EQ(freeListingName("TEMPOLINE.INP\n! TSFLST = other.lst !\n! TSFLST = a.lst !\n", "c.inp"),
              "a.lst");
    EXPECT_EQ(freeListingName("! TSFLST = b.lst !\n! TSFLST = other.lst !", "c.inp"), "TEMPOLINE.LST");
}

TEST(ControlLexer, ControlCharactersAreRefused) {
    EXPECT_EQ(failureOf([] { readAssignments("TEMPOLINE.INP\n\n! METINP = a\x01 !\n", "c"); },
                        ExitStatus::BadControl),
              "c:3: METINP: the value holds a control character");
}

}  // namespace zg::tempoline
