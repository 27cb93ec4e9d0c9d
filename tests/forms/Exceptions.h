#pragma once

#include <span>

namespace zg {

enum class Check { Names, Accelerators, ToolTips, TabOrder, Enter, Room, Colours };

/// A control that a check ignores, and why.
struct Exception {
    Check check;
    const char* form;
    const char* control;  ///< as in a finding; one "*" matches any text
    const char* reason;
};

std::span<const Exception> exceptions();

}  // namespace zg
