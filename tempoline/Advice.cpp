#include "tempoline/Advice.h"

#include <algorithm>

#include "tempoline/Texts.h"

namespace zg::tempoline {

namespace {

std::string shareText(Seconds part, Seconds whole) {
    return fixedText(100 * static_cast<double>(part) / static_cast<double>(whole), 1) + " percent";
}

std::string secondsText(Seconds count) { return std::to_string(count) + " seconds"; }

/// Whole records count for the step in which they begin, for example hours of UTC in a run whose zone differs
/// by half an hour.
std::string onClock(const RecordCounts& records, const Control& control) {
    const std::string begin = isoText(control.begin + records.misalignment);
    return std::to_string(records.misaligned) +
           " records of a whole step begin within one, the first of them " +
           secondsText(records.misalignment) +
           " after its begin, and each counts for the step in which it begins. Choose a period that "
           "begins " +
           "with a record, as at " + begin.substr(begin.find(' ') + 1) +
           ", or a time zone that is whole steps away from that of the data";
}

/// How many of `spacing` seconds valid steps cover, at most: a step is valid if half of it is covered, and a
/// record without length covers its whole step.
Seconds validPart(Seconds length, Seconds spacing, Seconds step) {
    const Seconds part = std::min(step, spacing);
    return length == 0 || 2 * length >= part ? part : 0;
}

/// The longest step that such records can make valid.
Seconds bestStep(Seconds length, Seconds spacing) {
    const Seconds longest = length == 0 ? spacing : std::min(2 * length, spacing);
    return std::min(longest, secondsADay);
}

std::string onStep(Seconds length, Seconds spacing, Seconds step) {
    std::string text = "the records begin " + secondsText(spacing) + " apart and ";
    text += length == 0 ? "are of a moment" : "last " + secondsText(length);
    text += ": at most " + shareText(validPart(length, spacing, step), spacing) + " of the steps of " +
            secondsText(step) + " can be valid. ";
    const Seconds best = bestStep(length, spacing);
    return text + "Choose a step of " + secondsText(best) + " (NSECDT = " + std::to_string(best) +
           "): " + shareText(validPart(length, spacing, best), spacing);
}

}  // namespace

std::vector<std::string> adviceOn(const RecordCounts& records, const Control& control) {
    std::vector<std::string> advice;
    if (records.misaligned > 0) advice.push_back(onClock(records, control));
    const Seconds spacing = records.spacing.commonest();
    const Seconds length = records.length.commonest();
    if (records.spacing.isEmpty() || length >= spacing) return advice;
    const Seconds best = validPart(length, spacing, bestStep(length, spacing));
    if (validPart(length, spacing, control.step) < best)
        advice.push_back(onStep(length, spacing, control.step));
    return advice;
}

}  // namespace zg::tempoline
