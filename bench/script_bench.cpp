// One evaluation of a formula in a sweep, beside the same formula in a parser library made for speed.

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <string>

#include "graph/script/ScriptEngine.h"

namespace {

constexpr const char* formulas[] = {"4",
                                    "t",
                                    "t^2",
                                    "4*sin(2*t)",
                                    "sin(5*t)",
                                    "2*sin(3*t)+cos(t)^2",
                                    "exp(cos(t))-2*cos(4*t)+sin(t/12)^5",
                                    "abs(sin(t))*3+1",
                                    "1+0.5*cos(7*t)-t/10",
                                    "(t-1)*(t+1)/(t*t+1)",
                                    "exp(-t/5)*cos(8*t)",
                                    "2*cos(3*t)+sin(2*t)*cos(5*t)-0.25*t"};

double next(double t) { return t < 6.28 ? t + 0.0174532925199433 : 0; }

void engine(benchmark::State& state, const char* formula) {
    zg::ScriptEngine script([] { return std::int64_t{0}; });
    zg::CompiledExpression compiled = script.compile(formula);
    const zg::VariableSlot slot = script.slot("t");
    double t = 0;
    for (auto _ : state) {
        t = next(t);
        script.setNumber(slot, t);
        benchmark::DoNotOptimize(script.evaluateNumber(compiled));
    }
}

void library(benchmark::State& state, const char* formula) {
    mu::Parser parser;
    double t = 0;
    parser.DefineVar("t", &t);
    parser.SetExpr(formula);
    for (auto _ : state) {
        t = next(t);
        benchmark::DoNotOptimize(parser.Eval());
    }
}

}  // namespace

int main(int argc, char** argv) {
    for (const char* formula : formulas) {
        benchmark::RegisterBenchmark((std::string("engine  ") + formula).c_str(), engine, formula);
        benchmark::RegisterBenchmark((std::string("library ") + formula).c_str(), library, formula);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
