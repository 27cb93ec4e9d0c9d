#pragma once

// The records of one output, in the order of their times, become steps of the period.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "tempoline/Control.h"
#include "tempoline/LineSource.h"
#include "tempoline/RecordCounts.h"
#include "tempoline/RoseTable.h"
#include "tempoline/TsfFile.h"
#include "tempoline/Wind.h"

namespace zg::tempoline {

class Series {
 public:
    /// The period and the rules of the run.
    explicit Series(const Control& control);

    RoseTable& table() { return table_; }
    const RoseTable& table() const { return table_; }

    /// Every step goes there too.
    void writeTo(TsfFile* file) { file_ = file; }

    /// A record from begin to end (the zone of the run); an empty one stands for the step it falls in. A
    /// record as long as the step passes through to the step in which it begins; a shorter one takes part in
    /// the average of each step that it touches. Throws for a record that is longer than the step, ends
    /// before it begins, lies before the one ahead of it or overlaps it.
    void add(Seconds begin, Seconds end, const Wind& wind, const Place& place,
             MissingReason reason = MissingReason::Values);

    /// Closes all steps to the end of the period.
    void finish();

    const RecordCounts& records() const { return records_; }
    const StepCounts& steps() const { return steps_; }

    /// Some record, valid or not, lies in the period.
    bool hasRecords() const { return records_.used + records_.missing > 0; }

 private:
    struct Average {
        bool isTouched = false;  ///< by some record, valid or not
        int count = 0;           ///< of valid ones
        double weight = 0;       ///< seconds that valid records cover
        double speed = 0;
        double east = 0;  ///< of the unit vectors
        double north = 0;
        Wind single;
    };

    /// Whether the record lies in the period and may count.
    bool isInside(Seconds begin, Seconds end);
    void countMissing(const Wind& wind, MissingReason reason);
    void countUsed(Seconds begin, Seconds end, const Wind& wind, const Place& place);
    void countStep(const Wind& wind);
    bool isNext(Seconds begin, Seconds end, const Place& place);
    void addPart(std::int64_t index, const Wind& wind, bool valid, double seconds);
    void closeStep();
    Wind averaged() const;

    Seconds periodBegin_;
    Seconds step_;
    std::int64_t stepCount_;
    Seconds periodEnd_;  ///< of the last whole step
    double calmLimit_;
    RoseTable table_;
    TsfFile* file_ = nullptr;
    RecordCounts records_;
    StepCounts steps_;
    bool any_ = false;
    Seconds lastBegin_ = 0;
    Seconds lastEnd_ = 0;
    bool instant_ = false;      ///< the record at hand has no length
    std::int64_t current_ = 0;  ///< index of the open step
    Average average_;
};

}  // namespace zg::tempoline
