#include "graph/control/CurveEvaluator.h"

#include <gtest/gtest.h>

namespace zg {
namespace {

struct Evaluator : ::testing::Test {
    Evaluator() { prepareForCurves(engine); }
    ScriptEngine engine{[] { return std::int64_t{0}; }};
};

TEST_F(Evaluator, APreparedEngineKnowsTheLibrary) { EXPECT_EQ(engine.evalNumber("MathLib.Diameter(2)"), 4); }

TEST_F(Evaluator, TIsTheAngleInRadiansWithTheDigitsOfItsText) {
    CurveEvaluator curve(engine, "", "t");
    EXPECT_DOUBLE_EQ(curve.turnTo(1), 0.017453292519943295);
    EXPECT_EQ(curve.radius(), 1.74532925199433E-02);
    EXPECT_DOUBLE_EQ(curve.turnTo(-180), -MathLibrary::Pi());
    EXPECT_EQ(curve.radius(), -3.14159265358979);
}

TEST_F(Evaluator, StatementsRunOnceAndTheEquationAtEachCall) {
    CurveEvaluator curve(engine, "n=10\nFunction f(x)\nn=n+x\nf=n\nEnd Function", "f(1)");
    curve.turnTo(0);
    EXPECT_EQ(curve.radius(), 11);
    EXPECT_EQ(curve.radius(), 12);
}

TEST_F(Evaluator, AFaultyTextIsNoCurve) {
    EXPECT_THROW(CurveEvaluator(engine, "a=", "1"), ScriptError);
    EXPECT_THROW(CurveEvaluator(engine, "", "1+"), ScriptError);
}

}  // namespace
}  // namespace zg
