#pragma once

// The most frequent value of a stream.

#include <cstdint>
#include <vector>

namespace zg::tempoline {

class CommonValue {
 public:
    /// Only the first 32 different values are counted; regular data have only a few.
    void add(std::int64_t value);

    bool isEmpty() const { return counts_.empty(); }

    /// The value added most often, the smaller one if two are equally frequent; 0 if there is none.
    std::int64_t commonest() const;

 private:
    struct Count {
        std::int64_t value = 0;
        std::int64_t times = 0;
    };
    std::vector<Count> counts_;
    std::size_t last_ = 0;  ///< index of the previous value, which usually repeats
};

}  // namespace zg::tempoline
