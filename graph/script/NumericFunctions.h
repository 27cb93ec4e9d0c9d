#pragma once

// The mathematical functions on plain doubles. Where a script gets an error they return a value that is not
// finite.

#include <cmath>

namespace zg::script {

inline double truncated(double x) { return std::trunc(x); }
inline double signOf(double x) { return (x > 0) - (x < 0); }
/// Not-a-number for anything not above 0.
inline double naturalLogarithm(double x) { return x > 0 ? std::log(x) : std::nan(""); }

}  // namespace zg::script
