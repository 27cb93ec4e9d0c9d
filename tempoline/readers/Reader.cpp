#include "tempoline/readers/Reader.h"

#include <algorithm>

#include "tempoline/Failure.h"
#include "tempoline/Texts.h"
#include "tempoline/readers/Readers.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t mostNotes = 100;

}  // namespace

void InputReader::addOnce(std::vector<std::string>& lines, const std::string& text) {
    if (lines.size() < mostNotes && std::find(lines.begin(), lines.end(), text) == lines.end())
        lines.push_back(text);
}

void InputReader::noteShift(const Control& control, Seconds fileOffset) {
    const Seconds shift = control.zoneOffset - fileOffset;
    note(entryLine("Time shift", std::string(shift < 0 ? "" : "+") + std::to_string(shift) +
                                     " seconds, from " + zoneText(fileOffset) + " of the data to " +
                                     control.zone));
}

void InputReader::noteNoShift(const Control& control) {
    note(entryLine("Time shift", "none: the data tell no zone, and are taken to be in " + control.zone));
}

void InputReader::noteEnd(const std::string& path, std::optional<Seconds> promised,
                          std::optional<Seconds> last, Seconds due) {
    if (!promised || (last && *last + due >= *promised)) return;
    note("WARNING: " + path + ": the header promises data until " + isoText(*promised) + ", and " +
         (last ? "the last record ends " + isoText(*last) : "there is no record"));
}

std::unique_ptr<InputReader> makeReader(const Control& control) {
    switch (control.kind) {
        case InputKind::AermSfc:
            return makeAermetSurface(control);
        case InputKind::AermPfl:
            return makeAermetProfile(control);
        case InputKind::Surf:
            return makeSurf(control);
        case InputKind::Up:
            return makeUp(control);
        case InputKind::MonitorW:
            return makeMonitor(control);
        case InputKind::Tsf:
            return makeTsf(control);
        case InputKind::M3d:
            return makeM3d(control);
        case InputKind::Ventos:
            return makeVentos(control);
        case InputKind::Csv:
            return makeCsv(control);
    }
    throw Failure(ExitStatus::BadControl, "the type of input is not known");
}

}  // namespace zg::tempoline
