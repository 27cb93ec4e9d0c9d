#include "tempoline/CommonValue.h"

namespace zg::tempoline {

namespace {

constexpr std::size_t mostValues = 32;

}  // namespace

void CommonValue::add(std::int64_t value) {
    if (last_ < counts_.size() && counts_[last_].value == value) {
        ++counts_[last_].times;
        return;
    }
    for (last_ = 0; last_ < counts_.size(); ++last_) {
        if (counts_[last_].value == value) {
            ++counts_[last_].times;
            return;
        }
    }
    if (counts_.size() < mostValues) counts_.push_back({value, 1});
}

std::int64_t CommonValue::commonest() const {
    Count best;
    for (const Count& count : counts_) {
        if (count.times > best.times || (count.times == best.times && count.value < best.value)) best = count;
    }
    return best.value;
}

}  // namespace zg::tempoline
