#include "graph/control/TrackPosition.h"

#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"

namespace zg {

double bearingDegrees(double X, double Y) {
    constexpr double almostLevel = 0.00000001;
    const double a = MathLibrary::Degrees(std::atan(X / (Y == 0 ? almostLevel : Y)));
    if (X < 0 && Y >= 0) return std::abs(a);
    if ((X <= 0 && Y <= 0) || (X >= 0 && Y < 0)) return 180 - a;
    if (X > 0 && Y >= 0) return 360 - a;
    return a;
}

TrackedPosition trackPosition(float x, float y, const PolarGeometry& geometry, float polarUnit,
                              std::optional<float> circleWidth) {
    if (geometry.UnitLength == 0) raise(ErrorNumber::DivisionByZero);
    const auto unitLength = static_cast<double>(geometry.UnitLength);
    const auto unit = static_cast<double>(polarUnit);
    const auto leftward =
        static_cast<double>(toSingle(static_cast<double>(geometry.CentreX - x) / unitLength));
    const auto upward = static_cast<double>(toSingle(static_cast<double>(geometry.CentreY - y) / unitLength));
    const float radial = circleWidth ? toSingle(static_cast<double>(*circleWidth) * unit / unitLength / 2)
                                     : toSingle(MathLibrary::Radius(leftward, upward) * unit);
    const auto r = static_cast<double>(radial);
    return {toSingle(0 - leftward),
            toSingle(upward),
            toSingle(bearingDegrees(leftward, upward)),
            toSingle(MathLibrary::Area(r)),
            toSingle(MathLibrary::Circumference(r)),
            toSingle(MathLibrary::Diameter(r)),
            radial};
}

}  // namespace zg
