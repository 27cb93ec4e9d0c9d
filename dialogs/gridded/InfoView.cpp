#include "dialogs/gridded/InfoView.h"

#include <cmath>
#include <cstdio>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "dialogs/gridded/GridFileHeader.h"
#include "dialogs/gridded/Projection.h"
#include "processing/DateHelpers.h"
#include "processing/Directories.h"

namespace zg {

ModInfoViewDLL modInfoViewDLL{readGridFileHeader, {}, {}, {}, {}};

namespace {

constexpr std::int32_t secondsOfMinute = 60;

DateTime momentOf(const InfoViewResult::Time& time) {
    const DateTime date =
        DateFromParts(std::to_string(time.year), std::to_string(time.month), std::to_string(time.day));
    return AddTimeToDate(date, std::to_string(time.hour) + ":" +
                                   std::to_string(idiv(time.seconds, secondsOfMinute)) + ":" +
                                   std::to_string(imod(time.seconds, secondsOfMinute)));
}

std::string signedText(float degrees, const char* positive, const char* negative) {
    return singleText(std::fabs(degrees)) + (degrees < 0 ? negative : positive);
}

/// False if there is no answer.
bool ask(const std::string& path, GridKind kind, InfoViewResult& result) {
    try {
        modInfoViewDLL.infoview(path, kind, result);
        return true;
    } catch (const RunTimeError&) {
        result = InfoViewResult();
        return false;
    }
}

}  // namespace

void ReadGridHeader(const std::string& path, GridKind kind) {
    ModInfoViewDLL& m = modInfoViewDLL;
    m.result = InfoViewResult();
    m.HeaderStartTime = m.HeaderEndTime = DateTime();
    const bool answered = ask(trim(path), kind, m.result);
    // A library leaves its own notes there, which nobody reads.
    const std::string notes = existingFile(withSeparator(DirOf(path)) + "infoview.txt");
    if (!notes.empty()) std::remove(notes.c_str());
    if (answered && m.result.errorFlag == 0) {
        m.HeaderStartTime = momentOf(m.result.first);
        m.HeaderEndTime = momentOf(m.result.last);
    }
    m.HeaderTimeZone = trim(m.result.timeZone);
    projection = nativeProjection();
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
