#include "graph/control/CurveTable.h"

#include <cmath>

#include "base/MathLibrary.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "graph/control/CurveEvaluator.h"

namespace zg {

namespace {

constexpr std::size_t mostRows = 10'000'000;
constexpr int decimals = 4;

}  // namespace

std::vector<CurveRow> tabulateCurve(const GrapInfo& graph, ScriptEngine::Clock clock,
                                    const std::function<void()>& onRow, SweepWatch::Serve serve) {
    if (graph.Step == 0) raise(ErrorNumber::DivisionByZero);
    ScriptEngine engine(clock);
    prepareForCurves(engine);
    engine.Timeout(-1);
    const bool canBeStopped = static_cast<bool>(serve);
    SweepWatch watch(std::move(clock), std::move(serve),
                     canBeStopped ? std::nullopt : std::optional(SweepWatch::usualLimit));
    std::vector<CurveRow> rows;
    const auto sweep = [&] {
        CurveEvaluator curve(engine, graph.Coefficient, graph.Equation);
        for (SweepAngles angles(graph); !angles.done(); angles.advance()) {
            if (rows.size() == mostRows) throw RunTimeError(7, "Out of memory");
            const double radians = curve.turnTo(angles.angle());
            const double x = curve.radius() * std::cos(radians);
            const double y = curve.radius() * std::sin(radians);
            const double radius = MathLibrary::Radius(x, y);
            rows.push_back({angles.angle(), roundHalfEven(x, decimals), roundHalfEven(y, decimals),
                            roundHalfEven(radius, decimals)});
            if (onRow) onRow();
            watch.look();
        }
    };
    sweepUnderWatch(engine, watch, graph.Equation, sweep);
    return rows;
}

}  // namespace zg
