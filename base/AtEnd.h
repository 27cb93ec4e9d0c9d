#pragma once

#include <utility>

namespace zg {

/// Runs an action at the end of the scope, however it is left, to restore what was changed temporarily. The
/// action must not throw.
template <typename Act>
class AtEnd {
 public:
    explicit AtEnd(Act act) : act_(std::move(act)) {}
    ~AtEnd() { act_(); }
    AtEnd(const AtEnd&) = delete;
    AtEnd& operator=(const AtEnd&) = delete;

 private:
    Act act_;
};

}  // namespace zg
