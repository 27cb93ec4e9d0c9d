#pragma once

#include <utility>

namespace zg {

/// Carries an action out at the end of the scope, however the end comes about: what was changed for a while
/// is put back there. The action must not throw.
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
