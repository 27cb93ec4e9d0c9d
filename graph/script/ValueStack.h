#pragma once

#include <cstddef>
#include <memory>

#include "graph/script/Limits.h"
#include "graph/script/Value.h"

namespace zg::script {

/// Storage for the machine's values, whose addresses never change. Values are created on demand, so that an
/// engine for one small formula costs little.
class ValueStack {
 public:
    ValueStack() = default;
    ~ValueStack() {
        std::destroy_n(values_, made_);
        if (values_) std::allocator<Value>().deallocate(values_, maxStackValues);
    }
    ValueStack(const ValueStack&) = delete;
    ValueStack& operator=(const ValueStack&) = delete;

    /// Ensures that this many values exist, at most maxStackValues; new ones are Empty.
    void reserve(std::size_t count) {
        if (count <= made_) return;
        if (!values_) values_ = std::allocator<Value>().allocate(maxStackValues);
        std::uninitialized_default_construct_n(values_ + made_, count - made_);
        made_ = count;
    }

    Value& operator[](std::size_t index) { return values_[index]; }

 private:
    Value* values_ = nullptr;
    std::size_t made_ = 0;
};

}  // namespace zg::script
