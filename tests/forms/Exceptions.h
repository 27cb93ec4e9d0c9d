#pragma once

#include <span>

namespace zg {

enum class Check { Names, Accelerators, ToolTips, TabOrder, Enter, Room, Colours };

/// A control that a check leaves alone, and why.
struct Exception {
    Check check;
    const char* form;
    const char* control;  ///< as in a finding; one "*" stands for any text
    const char* reason;
};

std::span<const Exception> exceptions();

}  // namespace zg
