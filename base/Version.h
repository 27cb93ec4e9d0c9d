#pragma once

// The version that all programs of the project report.

namespace zg {

inline constexpr const char* versionNumber = "4.9";

}  // namespace zg
