// One evaluation of a formula in t: the script engine's compiled expression compared with muparser's
// bytecode. Both set the variable and evaluate, as a sweep does.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <array>
#include <cstddef>
#include <numbers>
#include <string>

#include "graph/script/ScriptEngine.h"

namespace {

struct Formula {
    const char* script;
    const char* muparser;
};

constexpr std::array formulas = {
    Formula{"4", "4"},
    Formula{"t", "t"},
    Formula{"t^2", "t^2"},
    Formula{"2*t+1", "2*t+1"},
    Formula{"sin(t)", "sin(t)"},
    Formula{"sin(5*t)", "sin(5*t)"},
    Formula{"1+cos(t)", "1+cos(t)"},
    Formula{"abs(sin(t))*3+1", "abs(sin(t))*3+1"},
    Formula{"sqr(abs(cos(2*t)))", "sqrt(abs(cos(2*t)))"},
    Formula{"2*sin(3*t)+cos(t)^2", "2*sin(3*t)+cos(t)^2"},
    Formula{"exp(cos(t))-2*cos(4*t)+sin(t/12)^5", "exp(cos(t))-2*cos(4*t)+sin(t/12)^5"},
    Formula{"(1+0.9*cos(8*t))*(1+0.1*cos(24*t))*(0.9+0.05*cos(200*t))*(1+sin(t))",
            "(1+0.9*cos(8*t))*(1+0.1*cos(24*t))*(0.9+0.05*cos(200*t))*(1+sin(t))"},
    Formula{"t^3-2*t^2+t", "t^3-2*t^2+t"},
    Formula{"t^1.5/(1+t)", "t^1.5/(1+t)"},
    Formula{"4*sin(2*t)", "4*sin(2*t)"},
    Formula{"1+0.5*cos(7*t)-t/10", "1+0.5*cos(7*t)-t/10"},
    Formula{"(t-1)*(t+1)/(t*t+1)", "(t-1)*(t+1)/(t*t+1)"},
    Formula{"exp(-t/5)*cos(8*t)", "exp(-t/5)*cos(8*t)"},
    Formula{"2*cos(3*t)+sin(2*t)*cos(5*t)-0.25*t", "2*cos(3*t)+sin(2*t)*cos(5*t)-0.25*t"},
    Formula{"5-5*sin(t)", "5-5*sin(t)"},
    Formula{"10/(1+0.5*cos(t))", "10/(1+0.5*cos(t))"},
    Formula{"t/2", "t/2"},
};

/// The angles of a sweep, computed beforehand so that only the evaluation is measured.
constexpr std::size_t angleCount = 512;

std::array<double, angleCount> sweep() {
    std::array<double, angleCount> angles{};
    for (std::size_t i = 0; i < angleCount; ++i)
        angles[i] = static_cast<double>(i + 1) * 2 * std::numbers::pi / angleCount;
    return angles;
}

void script(benchmark::State& state, const char* formula) {
    zg::ScriptEngine engine;
    const zg::VariableSlot slot = engine.slot("t");
    zg::CompiledExpression compiled = engine.compile(formula);
    const auto angles = sweep();
    std::size_t i = 0;
    for (auto _ : state) {
        engine.setNumber(slot, angles[i++ % angleCount]);
        benchmark::DoNotOptimize(engine.evaluateNumber(compiled));
    }
}

void muparser(benchmark::State& state, const char* formula) {
    mu::Parser parser;
    double variable = 0;
    parser.DefineVar("t", &variable);
    parser.SetExpr(formula);
    const auto angles = sweep();
    std::size_t i = 0;
    for (auto _ : state) {
        variable = angles[i++ % angleCount];
        benchmark::DoNotOptimize(parser.Eval());
    }
}

}  // namespace

int main(int argc, char** argv) {
    for (const Formula& formula : formulas) {
        benchmark::RegisterBenchmark((std::string("script   ") + formula.script).c_str(), script,
                                     formula.script);
        benchmark::RegisterBenchmark((std::string("muparser ") + formula.script).c_str(), muparser,
                                     formula.muparser);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
