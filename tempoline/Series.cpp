#include "tempoline/Series.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tempoline/Interrupt.h"

namespace zg::tempoline {

namespace {

constexpr double radiansADegree = std::numbers::pi / 180;
constexpr std::int64_t stepsBetweenLooks = 1024;
constexpr double noDirection = 1e-9;  // a shorter mean unit vector has no direction

}  // namespace

Series::Series(const Control& control)
    : periodBegin_(control.begin),
      step_(control.step),
      stepCount_((control.end - control.begin) / control.step),
      periodEnd_(control.begin + stepCount_ * control.step),
      calmLimit_(control.rules.classLimits[0]),
      table_(control.rules, control.step) {}

bool Series::isNext(Seconds begin, Seconds end, const Place& place) {
    if (end < begin) throw place.failure("time", "the record ends before it begins");
    if (end - begin > step_)
        throw place.failure("time", "the record of " + std::to_string(end - begin) +
                                        " seconds is longer than the step of " + std::to_string(step_));
    if (any_ && begin < lastBegin_)
        throw place.failure(
            "time", "records are out of order: " + isoText(begin) + " follows " + isoText(lastBegin_));
    if (any_ && begin == lastBegin_) {
        if (records_.duplicate++ == 0)
            records_.firstDuplicate = place.path + ":" + std::to_string(place.line);
        return false;
    }
    if (any_ && begin < lastEnd_)
        throw place.failure("time", "the record of " + isoText(begin) + " begins before the last one ends, " +
                                        isoText(lastEnd_));
    if (any_) records_.spacing.add(begin - lastBegin_);
    records_.length.add(end - begin);
    any_ = true;
    lastBegin_ = begin;
    lastEnd_ = end;
    return true;
}

bool Series::isInside(Seconds begin, Seconds end) {
    const bool isWhole = end == begin || end - begin == step_;
    const bool isEarly = isWhole ? begin < periodBegin_ : end <= periodBegin_;
    if (isEarly || begin >= periodEnd_) {
        ++records_.outside;
        records_.early += isEarly ? 1 : 0;
        return false;
    }
    const Seconds offset = (begin - periodBegin_) % step_;
    if (end - begin == step_ && offset != 0 && records_.misaligned++ == 0) records_.misalignment = offset;
    return true;
}

void Series::countMissing(const Wind& wind, MissingReason reason) {
    ++records_.missing;
    if (reason == MissingReason::NoLevel)
        ++records_.noLevel;
    else if (!hasSpeed(wind))
        ++(hasValue(wind.speed) ? records_.wrongSpeed : records_.noSpeed);
    else
        ++(hasValue(wind.direction) ? records_.wrongDirection : records_.noDirection);
}

void Series::countUsed(Seconds begin, Seconds end, const Wind& wind, const Place& place) {
    if (wind.speed < calmLimit_) ++records_.calm;
    records_.lastUsed.begin = begin;
    records_.lastUsed.end = end;
    records_.lastUsed.line = place.line;
    if (records_.lastUsed.path != place.path) records_.lastUsed.path = place.path;
    if (records_.used++ == 0) records_.firstUsed = records_.lastUsed;
}

void Series::add(Seconds begin, Seconds end, const Wind& wind, const Place& place, MissingReason reason) {
    const bool counts = isNext(begin, end, place);
    ++records_.read;
    if (!counts || !isInside(begin, end)) return;
    const bool valid = isValid(wind, calmLimit_);
    if (valid)
        countUsed(begin, end, wind, place);
    else
        countMissing(wind, reason);
    if (end == begin || end - begin == step_) {
        instant_ = end == begin;
        addPart((begin - periodBegin_) / step_, wind, valid, static_cast<double>(step_));
        return;
    }
    const Seconds to = std::min(end, periodEnd_);
    for (Seconds at = std::max(begin, periodBegin_); at < to;) {
        const std::int64_t index = (at - periodBegin_) / step_;
        const Seconds next = std::min(to, periodBegin_ + (index + 1) * step_);
        addPart(index, wind, valid, static_cast<double>(next - at));
        at = next;
    }
}

void Series::addPart(std::int64_t index, const Wind& wind, bool valid, double seconds) {
    while (current_ < index) closeStep();
    average_.isTouched = true;
    if (!valid) return;
    ++average_.count;
    average_.single = wind;
    average_.weight += seconds;
    average_.speed += wind.speed * seconds;
    // A record that fills its step is the only one in it and keeps its exact values.
    const bool alone = average_.count == 1 && !instant_ && seconds == static_cast<double>(step_);
    if (!alone && wind.speed > 0 && hasDirection(wind)) {
        average_.east += seconds * std::sin(wind.direction * radiansADegree);
        average_.north += seconds * std::cos(wind.direction * radiansADegree);
    }
}

Wind Series::averaged() const {
    if (average_.count == 0 || 2 * average_.weight < static_cast<double>(step_)) return {};
    if (average_.count == 1) return average_.single;
    Wind mean;
    mean.speed = roundedToMillionth(average_.speed / average_.weight);
    if (std::hypot(average_.east, average_.north) > noDirection * average_.weight) {
        mean.direction = roundedToMillionth(std::atan2(average_.east, average_.north) / radiansADegree);
        mean.direction = mean.direction < 0 ? mean.direction + 360 : std::abs(mean.direction);
    }
    return mean;
}

void Series::countStep(const Wind& wind) {
    ++steps_.total;
    if (isValid(wind, calmLimit_))
        ++steps_.valid;
    else if (!average_.isTouched)
        ++steps_.noRecord;
    else if (average_.count == 0)
        ++steps_.noWind;
    else
        ++(hasSpeed(wind) ? steps_.noDirection : steps_.tooShort);
}

void Series::closeStep() {
    // There may be millions of steps between two records, and as many after the last one.
    if (current_ % stepsBetweenLooks == 0) throwIfInterrupted();
    const Seconds begin = periodBegin_ + current_ * step_;
    const Wind wind = averaged();
    countStep(wind);
    table_.add(begin, wind);
    if (file_ != nullptr) file_->add(begin, wind);
    average_ = {};
    ++current_;
}

void Series::finish() {
    while (current_ < stepCount_) closeStep();
}

}  // namespace zg::tempoline
