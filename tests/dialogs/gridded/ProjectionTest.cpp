#include "dialogs/gridded/Projection.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "tests/support/Raises.h"

namespace zg {
namespace {

using Texts = std::map<std::string, std::string>;

std::string faultOf(const char* pmap, const Texts& texts) {
    return projectionFault(*choiceOfPmap(pmap), [&](const char* name) {
        const auto found = texts.find(name);
        return found == texts.end() ? std::string() : found->second;
    });
}

/// All boxes of a projection filled with valid values.
Texts filled(const char* pmap) {
    Texts texts;
    for (const AngleField& angle : choiceOfPmap(pmap)->angles) {
        texts[angle.box] = "10";
        texts[angle.combo] = angle.isLatitude ? "N" : "E";
    }
    for (const PlainField& plain : choiceOfPmap(pmap)->plains) texts[plain.box] = "1";
    return texts;
}

TEST(Projection, ListEntriesAndCaptionsDifferForTheLastThree) {
    std::vector<std::string> entries;
    for (const ProjectionChoice& choice : projectionChoices()) entries.emplace_back(choice.entry);
    EXPECT_EQ(entries, (std::vector<std::string>{
                           "Geodetic (Latitude/Longitude):", "Universal Transverse Mercator (UTM):",
                           "Lambert Conformal Conic (LCC):", "Tangential Transverse Mercator (TTM):",
                           "Polar Stereographic (PS):", "Equatorial Mercator (EM):",
                           "Lambert Azimuthal Equal Area (LAZA):"}));
    EXPECT_STREQ(choiceOfCaption("Polar Stereographic:")->pmap, "PS");
    EXPECT_STREQ(choiceOfCaption("Equatorial Mercator:")->pmap, "EM");
    EXPECT_STREQ(choiceOfCaption("Lambert Azimuthal Equal Area:")->pmap, "LAZA");
    for (const char* entry : {"Polar Stereographic (PS):", "Equatorial Mercator (EM):",
                              "Lambert Azimuthal Equal Area (LAZA):", ""})
        EXPECT_EQ(choiceOfCaption(entry), nullptr) << entry;
}

TEST(Projection, EveryEmptyFieldIsTold) {
    const std::map<std::string, std::string> words = {{"UTM", "UTM"}, {"LCC", "LCC"}, {"TTM", "TTM"},
                                                      {"PS", "PS"},   {"EM", "EM"},   {"LAZA", "LZ"}};
    for (const auto& [pmap, word] : words) {
        const Texts good = filled(pmap.c_str());
        EXPECT_EQ(faultOf(pmap.c_str(), good), "") << pmap;
        for (const auto& [box, text] : good) {
            if (box.starts_with("cbo") && box != "cboLSOHEM1") continue;
            Texts texts = good;
            texts[box] = pmap == "UTM" ? "  " : "";
            EXPECT_EQ(faultOf(pmap.c_str(), texts),
                      "Please provide information for all requested " + word + " information.")
                << box;
        }
    }
    EXPECT_EQ(faultOf("LL", {}), "");
}

TEST(Projection, BlanksAloneAreEmptyForUtmOnly) {
    Texts texts = filled("UTM");
    texts["txtUTMZone1"] = " ";
    EXPECT_EQ(faultOf("UTM", texts), "Please provide information for all requested UTM information.");
    for (const auto& [pmap, box] : std::map<const char*, const char*>{
             {"LCC", "txtLCCFEast"}, {"TTM", "txtTTMFNorth"}, {"LAZA", "txtLAZAFEast"}}) {
        texts = filled(pmap);
        texts[box] = " ";
        EXPECT_EQ(faultOf(pmap, texts), "") << box;
    }
    texts = filled("PS");
    texts["txtPSRLAT11"] = " ";
    EXPECT_RAISES(13, "Type mismatch", faultOf("PS", texts));
}

TEST(Projection, RangesAreTestedInTheirOrderWithTheEndsIncluded) {
    Texts texts = filled("LCC");
    texts["txtLCCRLAT01"] = "90";
    texts["txtLCCRLON01"] = "-360";
    texts["txtLCCRLAT11"] = "-90";
    EXPECT_EQ(faultOf("LCC", texts), "");
    texts["txtLCCRLAT21"] = "90.001";
    EXPECT_EQ(faultOf("LCC", texts), "Latitude must be between -90 and +90.");
    texts["txtLCCRLON01"] = "360.5";
    EXPECT_EQ(faultOf("LCC", texts), "Longitude must be between -360 and +360.");
    texts["txtLCCRLAT01"] = "-90.5";
    EXPECT_EQ(faultOf("LCC", texts), "Latitude must be between -90 and +90.");
    texts = filled("UTM");
    texts["txtUTMZone1"] = "99";
    EXPECT_EQ(faultOf("UTM", texts), "") << "a zone has no range";
    texts = filled("EM");
    texts["txtEMRLAT01"] = "ten";
    EXPECT_RAISES(13, "Type mismatch", faultOf("EM", texts));
}

TEST(Projection, AnglesBeyondHalfATurnAreWrapped) {
    EXPECT_EQ(wrapped(""), "");
    EXPECT_EQ(wrapped("180"), "180");
    EXPECT_EQ(wrapped("180.5"), "-179.5");
    EXPECT_EQ(wrapped("-181"), "179");
    EXPECT_EQ(wrapped(" 45.0 "), " 45.0 ");
    EXPECT_RAISES(13, "Type mismatch", wrapped("x"));
    EXPECT_EQ(latitudeBoxes().size(), 8U);
    EXPECT_STREQ(latitudeBoxes()[3], "txtTTMRLAT01");
}

TEST(Projection, EachFieldHasItsOwnControls) {
    const auto savedNames = [](const char* pmap) {
        projection = {};
        SaveProjection(*choiceOfPmap(pmap), [](const char* name) { return std::string(name); });
        const ProjectionRecord r = std::exchange(projection, {});
        return std::vector<std::string>{r.PMAP,  r.FEAST, r.FNORTH, r.IUTMZN, r.UTMHEM,
                                        r.RLAT0, r.RLON0, r.XLAT1,  r.XLAT2,  r.DATUM};
    };
    const auto angle = [](const std::string& name) { return "txt" + name + "cbo" + name; };
    using Row = std::vector<std::string>;
    EXPECT_EQ(savedNames("LL"), (Row{"LL", "", "", "", "", "", "", "", "", "cboCode"}));
    EXPECT_EQ(savedNames("UTM"),
              (Row{"UTM", "", "", "txtUTMZone1", "cboLSOHEM1", "", "", "", "", "cboCode"}));
    EXPECT_EQ(savedNames("LCC"),
              (Row{"LCC", "txtLCCFEast", "txtLCCFNorth", "", "", angle("LCCRLAT01"), angle("LCCRLON01"),
                   angle("LCCRLAT11"), angle("LCCRLAT21"), "cboCode"}));
    EXPECT_EQ(savedNames("TTM"), (Row{"TTM", "txtTTMFEast", "txtTTMFNorth", "", "", angle("TTMRLAT01"),
                                      angle("TTMRLON01"), "", "", "cboCode"}));
    EXPECT_EQ(savedNames("PS"), (Row{"PS", "", "", "", "", angle("PSRLAT01"), angle("PSRLON01"),
                                     angle("PSRLAT11"), "", "cboCode"}));
    EXPECT_EQ(savedNames("EM"),
              (Row{"EM", "", "", "", "", angle("EMRLAT01"), angle("EMRLON01"), "", "", "cboCode"}));
    EXPECT_EQ(savedNames("LAZA"), (Row{"LAZA", "txtLAZAFEast", "txtLAZAFNorth", "", "", angle("LZRLAT01"),
                                       angle("LZRLON01"), "", "", "cboCode"}));
}

TEST(Projection, SavingTakesTheFieldsOfTheChoiceOnly) {
    projection = {"", "1", "2", "33", "S", "old", "old", "old", "old", ""};
    Texts texts = filled("PS");
    texts["txtPSRLAT01"] = " 90 ";
    texts["cboPSRLAT01"] = "S";
    texts["cboPSRLON01"] = "W";
    texts["cboCode"] = " WGS-84 ";
    const FieldText text = [&](const char* name) { return texts[name]; };
    SaveProjection(*choiceOfPmap("PS"), text);
    EXPECT_EQ(projection.PMAP, "PS");
    EXPECT_EQ(projection.RLAT0, "90S");
    EXPECT_EQ(projection.RLON0, "10W");
    EXPECT_EQ(projection.XLAT1, "10N");
    EXPECT_EQ(projection.XLAT2, "old");
    EXPECT_EQ(projection.FEAST, "1");
    EXPECT_EQ(projection.UTMHEM, "S");
    EXPECT_EQ(projection.DATUM, "WGS-84");
    texts = {{"txtUTMZone1", " 18 "}, {"cboLSOHEM1", "Northern"}, {"cboCode", "NAR-C"}};
    SaveProjection(*choiceOfPmap("UTM"), text);
    EXPECT_EQ(projection.IUTMZN, "18");
    EXPECT_EQ(projection.UTMHEM, "N");
    projection = {};
}

}  // namespace
}  // namespace zg
