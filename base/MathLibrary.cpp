#include "base/MathLibrary.h"

#include <cmath>

#include "base/RunTimeError.h"

namespace zg {

double MathLibrary::Pi() { return 4 * std::atan(1.0); }

double MathLibrary::Radians(double degrees) { return degrees * Pi() / 180; }

double MathLibrary::Degrees(double radians) { return radians * 180 / Pi(); }

double MathLibrary::Area(double radius) { return Pi() * radius * radius; }

double MathLibrary::Circumference(double radius) { return 2 * Pi() * radius; }

double MathLibrary::Diameter(double radius) { return 2 * radius; }

double MathLibrary::Radius(double x, double y) { return std::sqrt(x * x + y * y); }

double MathLibrary::Sec(double x) {
    const double divisor = std::cos(x);
    return divisor == 0 ? 0 : 1 / divisor;
}

double MathLibrary::Csc(double x) {
    const double divisor = std::sin(x);
    return divisor == 0 ? 0 : 1 / divisor;
}

double MathLibrary::Cot(double x) {
    const double divisor = std::sin(x);
    return divisor == 0 ? 0 : std::cos(x) / divisor;
}

double MathLibrary::pow(double x, double y) {
    if (!(x > 0)) raise(ErrorNumber::InvalidProcedureCall);
    const double result = std::exp(y * std::log(x));
    if (!std::isfinite(result)) raise(ErrorNumber::Overflow);
    return result;
}

double MathLibrary::Milliseconds(std::int16_t n) { return n / 1000.0; }

}  // namespace zg
