#pragma once

// Whole powers 2 to 5 without the library's pow. A product carries its rounding error along as a second
// double, so that the result is in effect rounded once: it is the correctly rounded power unless the exact
// value is within about 2^-100 of a rounding boundary, and never less accurate than pow.

#include <cmath>

namespace zg::script {

/// A number as an unevaluated sum.
struct Pair {
    double high;
    double low;
};

/// The exact product of two numbers, the square of whose product must be in the range of doubles.
inline Pair exactProduct(double a, double b) {
    const double high = a * b;
#ifdef FP_FAST_FMA
    return {high, std::fma(a, b, -high)};
#else
    constexpr double splitter = 134217729;  // 2^27 + 1
    const double bigA = splitter * a;
    const double bigB = splitter * b;
    const double headA = bigA - (bigA - a);
    const double headB = bigB - (bigB - b);
    const double tailA = a - headA;
    const double tailB = b - headB;
    return {high, ((headA * headB - high) + headA * tailB + tailA * headB) + tailA * tailB};
#endif
}

/// Whether the exact products of the powers up to 5 neither overflow nor lose digits by underflow.
inline bool inPowerRange(double x) {
    const double size = std::fabs(x);
    return size > 1e-50 && size < 1e50;
}

inline double cube(double x) {
    if (!inPowerRange(x)) return std::pow(x, 3);
    const Pair square = exactProduct(x, x);
    const Pair third = exactProduct(square.high, x);
    return third.high + (third.low + square.low * x);
}

inline Pair fourthPair(double x) {
    const Pair square = exactProduct(x, x);
    const Pair fourth = exactProduct(square.high, square.high);
    return {fourth.high, fourth.low + 2 * square.high * square.low};
}

inline double fourthPower(double x) {
    if (!inPowerRange(x)) return std::pow(x, 4);
    const Pair fourth = fourthPair(x);
    return fourth.high + fourth.low;
}

inline double fifthPower(double x) {
    if (!inPowerRange(x)) return std::pow(x, 5);
    const Pair fourth = fourthPair(x);
    const Pair fifth = exactProduct(fourth.high, x);
    return fifth.high + (fifth.low + fourth.low * x);
}

/// x to the power y; not finite if there is no such number.
inline double power(double x, double y) {
    if (y == 2) return x * x;
    if (y == 3) return cube(x);
    if (y == 4) return fourthPower(x);
    if (y == 5) return fifthPower(x);
    return std::pow(x, y);
}

}  // namespace zg::script
