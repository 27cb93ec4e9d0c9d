#pragma once

// Turns the records of one output, in order of time, into steps of the period.

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

    /// Every step is also written there.
    void writeTo(TsfFile* file) { file_ = file; }

    /// Adds a record from begin to end (in the zone of the run); an empty one counts for the step it falls
    /// in. A record as long as the step is the value of the step in which it begins; a shorter one takes part
    /// in the average of each step that it overlaps. Throws for a record that is longer than the step, ends
    /// before it begins, or begins before or overlaps the one before it.
    void add(Seconds begin, Seconds end, const Wind& wind, const Place& place,
             MissingReason reason = MissingReason::Values);

    /// Closes all remaining steps of the period.
    void finish();

    const RecordCounts& records() const { return records_; }
    const StepCounts& steps() const { return steps_; }

    /// Whether any record, valid or not, is in the period.
    bool hasRecords() const { return records_.used + records_.missing > 0; }

 private:
    struct Average {
        bool isTouched = false;  ///< covered by some record, valid or not
        int count = 0;           ///< covered by valid ones
        double weight = 0;       ///< seconds that valid records cover
        double speed = 0;
        double east = 0;  ///< of the unit vectors
        double north = 0;
        Wind single;
    };

    /// Whether the record is in the period and is not a duplicate.
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
    Seconds periodEnd_;  ///< of the last complete step
    double calmLimit_;
    RoseTable table_;
    TsfFile* file_ = nullptr;
    RecordCounts records_;
    StepCounts steps_;
    bool any_ = false;
    Seconds lastBegin_ = 0;
    Seconds lastEnd_ = 0;
    bool instant_ = false;      ///< the current record has no length
    std::int64_t current_ = 0;  ///< index of the current step
    Average average_;
};

}  // namespace zg::tempoline
