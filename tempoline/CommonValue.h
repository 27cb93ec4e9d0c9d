#pragma once

// The commonest of a stream of values.

#include <cstdint>
#include <vector>

namespace zg::tempoline {

class CommonValue {
 public:
    /// Only the first 32 different values are counted: a few are what regular data have.
    void add(std::int64_t value);

    bool isEmpty() const { return counts_.empty(); }

    /// The one added most often, of equals the smaller; 0 where there is none.
    std::int64_t commonest() const;

 private:
    struct Count {
        std::int64_t value = 0;
        std::int64_t times = 0;
    };
    std::vector<Count> counts_;
    std::size_t last_ = 0;  ///< the place of the value before, which mostly comes again
};

}  // namespace zg::tempoline
