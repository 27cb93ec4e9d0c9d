#include "headers/InfoView.h"

#include "base/Files.h"
#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "headers/DateHelpers.h"
#include "headers/GridFileHeader.h"

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

/// False if there is no answer.
bool ask(const std::string& path, InputKind kind, InfoViewResult& result) {
    try {
        modInfoViewDLL.infoview(path, kind, result);
        return true;
    } catch (const RunTimeError&) {
        result = InfoViewResult();
        return false;
    }
}

}  // namespace

void ReadGridHeader(const std::string& path, InputKind kind) {
    ModInfoViewDLL& m = modInfoViewDLL;
    m.result = InfoViewResult();
    m.HeaderStartTime = m.HeaderEndTime = DateTime();
    const bool answered = ask(trim(path), kind, m.result);
    // A library leaves its own notes there, which nobody reads.
    const std::string notes = existingFile(withSeparator(DirOf(path)) + "infoview.txt");
    if (!notes.empty()) removeFile(notes);
    if (answered && m.result.errorFlag == 0) {
        m.HeaderStartTime = momentOf(m.result.first);
        m.HeaderEndTime = momentOf(m.result.last);
    }
    m.HeaderTimeZone = trim(m.result.timeZone);
}

}  // namespace zg
