#pragma once

#include <cstdint>

namespace zg {

/// The pure operations that scripts know as "MathLib" and the measuring tools use. Trigonometric operations
/// take and return radians.
struct MathLibrary {
    static double Pi();
    static double Radians(double degrees);
    static double Degrees(double radians);
    static double Area(double radius);
    static double Circumference(double radius);
    static double Diameter(double radius);
    /// Distance of (x, y) from the centre.
    static double Radius(double x, double y);
    /// 1 / cos x, 1 / sin x, cos x / sin x; 0 if the divisor is 0.
    static double Sec(double x);
    static double Csc(double x);
    static double Cot(double x);
    /// exp(y ln x); raises 5 unless x > 0.
    static double pow(double x, double y);
    /// Milliseconds converted to seconds.
    static double Milliseconds(std::int16_t n);
};

}  // namespace zg
