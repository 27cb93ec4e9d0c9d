#include "dialogs/gridded/Projection.h"

#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "headers/InfoView.h"

namespace zg {

ProjectionRecord projection;

namespace {

using R = ProjectionRecord;
constexpr double turn = 360;
constexpr double halfTurn = 180;
constexpr double pole = 90;

AngleField latitude(const char* box, const char* combo, std::string R::*value) {
    return {box, combo, true, value};
}
AngleField longitude(const char* box, const char* combo) { return {box, combo, false, &R::RLON0}; }

std::vector<ProjectionChoice> makeChoices() {
    const char* const utm = "Universal Transverse Mercator (UTM):";
    const char* const lcc = "Lambert Conformal Conic (LCC):";
    const char* const ttm = "Tangential Transverse Mercator (TTM):";
    const char* const ll = "Geodetic (Latitude/Longitude):";
    return {
        {"LL", ll, ll, "", {}, {}, "", false},
        {"UTM",
         utm,
         utm,
         "UTM1",
         {},
         {{"txtUTMZone1", &R::IUTMZN}, {"cboLSOHEM1", &R::UTMHEM}},
         "Please provide information for all requested UTM information.",
         true},
        {"LCC",
         lcc,
         lcc,
         "LCC1",
         {latitude("txtLCCRLAT01", "cboLCCRLAT01", &R::RLAT0), longitude("txtLCCRLON01", "cboLCCRLON01"),
          latitude("txtLCCRLAT11", "cboLCCRLAT11", &R::XLAT1),
          latitude("txtLCCRLAT21", "cboLCCRLAT21", &R::XLAT2)},
         {{"txtLCCFEast", &R::FEAST}, {"txtLCCFNorth", &R::FNORTH}},
         "Please provide information for all requested LCC information.",
         false},
        {"TTM",
         ttm,
         ttm,
         "TTM1",
         {latitude("txtTTMRLAT01", "cboTTMRLAT01", &R::RLAT0), longitude("txtTTMRLON01", "cboTTMRLON01")},
         {{"txtTTMFEast", &R::FEAST}, {"txtTTMFNorth", &R::FNORTH}},
         "Please provide information for all requested TTM information.",
         false},
        {"PS",
         "Polar Stereographic (PS):",
         "Polar Stereographic:",
         "PS1",
         {latitude("txtPSRLAT01", "cboPSRLAT01", &R::RLAT0), longitude("txtPSRLON01", "cboPSRLON01"),
          latitude("txtPSRLAT11", "cboPSRLAT11", &R::XLAT1)},
         {},
         "Please provide information for all requested PS information.",
         false},
        {"EM",
         "Equatorial Mercator (EM):",
         "Equatorial Mercator:",
         "EM1",
         {latitude("txtEMRLAT01", "cboEMRLAT01", &R::RLAT0), longitude("txtEMRLON01", "cboEMRLON01")},
         {},
         "Please provide information for all requested EM information.",
         false},
        {"LAZA",
         "Lambert Azimuthal Equal Area (LAZA):",
         "Lambert Azimuthal Equal Area:",
         "LAZA1",
         {latitude("txtLZRLAT01", "cboLZRLAT01", &R::RLAT0), longitude("txtLZRLON01", "cboLZRLON01")},
         {{"txtLAZAFEast", &R::FEAST}, {"txtLAZAFNorth", &R::FNORTH}},
         "Please provide information for all requested LZ information.",
         false},
    };
}

template <typename Test>
const ProjectionChoice* find(Test test) {
    for (const ProjectionChoice& choice : projectionChoices())
        if (test(choice)) return &choice;
    return nullptr;
}

std::string signedText(float degrees, const char* positive, const char* negative) {
    return singleText(std::fabs(degrees)) + (degrees < 0 ? negative : positive);
}

}  // namespace

const std::vector<ProjectionChoice>& projectionChoices() {
    static const std::vector<ProjectionChoice> choices = makeChoices();
    return choices;
}

const ProjectionChoice* choiceOfCaption(const std::string& caption) {
    return find([&](const ProjectionChoice& choice) { return choice.caption == caption; });
}

const ProjectionChoice* choiceOfPmap(const std::string& pmap) {
    return find([&](const ProjectionChoice& choice) { return choice.pmap == pmap; });
}

std::string projectionFault(const ProjectionChoice& choice, const FieldText& text) {
    const auto isEmpty = [&](const char* box) {
        return choice.isTrimmed ? trim(text(box)).empty() : text(box).empty();
    };
    for (const AngleField& angle : choice.angles)
        if (isEmpty(angle.box)) return choice.emptyMessage;
    for (const PlainField& plain : choice.plains)
        if (isEmpty(plain.box)) return choice.emptyMessage;
    for (const AngleField& angle : choice.angles) {
        const double value = toDouble(text(angle.box));
        const double limit = angle.isLatitude ? pole : turn;
        if (value >= -limit && value <= limit) continue;
        return angle.isLatitude ? "Latitude must be between -90 and +90."
                                : "Longitude must be between -360 and +360.";
    }
    return {};
}

std::span<const char* const> latitudeBoxes() {
    static constexpr std::array<const char*, 8> boxes = {"txtLCCRLAT01", "txtLCCRLAT11", "txtLCCRLAT21",
                                                         "txtTTMRLAT01", "txtPSRLAT01",  "txtPSRLAT11",
                                                         "txtEMRLAT01",  "txtLZRLAT01"};
    return boxes;
}

std::string wrapped(const std::string& text) {
    if (text.empty()) return text;
    const double value = toDouble(text);
    if (value > halfTurn) return doubleText(value - turn);
    if (value < -halfTurn) return doubleText(value + turn);
    return text;
}

void SaveProjection(const ProjectionChoice& choice, const FieldText& text) {
    projection.PMAP = choice.pmap;
    for (const AngleField& angle : choice.angles)
        projection.*angle.value = trim(text(angle.box)) + text(angle.combo);
    for (const PlainField& plain : choice.plains) projection.*plain.value = trim(text(plain.box));
    if (projection.UTMHEM == "Northern") projection.UTMHEM = "N";
    if (projection.UTMHEM == "Southern") projection.UTMHEM = "S";
    projection.DATUM = trim(text("cboCode"));
}

ProjectionRecord nativeProjection() {
    const InfoViewResult& r = modInfoViewDLL.result;
    ProjectionRecord p;
    p.PMAP = ucase(trim(r.PMAP));
    p.DATUM = ucase(trim(r.DATUM));
    p.UTMHEM = ucase(trim(r.UTMHEM));
    p.FEAST = singleText(r.FEAST);
    p.FNORTH = singleText(r.FNORTH);
    p.IUTMZN = std::to_string(r.IUTMZN);
    p.RLAT0 = signedText(r.RLAT0, "N", "S");
    p.RLON0 = signedText(r.RLON0, "E", "W");
    p.XLAT1 = signedText(r.XLAT1, "N", "S");
    p.XLAT2 = signedText(r.XLAT2, "N", "S");
    return p;
}

}  // namespace zg
