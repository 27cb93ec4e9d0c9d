#include <cmath>

#include "base/RunTimeError.h"
#include "tests/graph/script/ScriptSupport.h"

namespace {

class SweptFormula : public ::testing::TestWithParam<const char*> {};

TEST_P(SweptFormula, TheCompiledFormAgreesWithTheGeneralOne) {
    zg::ScriptEngine engine;
    engine.AddObject("MathLib", zg::MathLibrary{});
    engine.AddCode("a = 2: b = 0.5: c = True");
    zg::CompiledExpression compiled = engine.compile(GetParam());
    const zg::VariableSlot t = engine.slot("t");
    for (int degrees = -720; degrees <= 720; degrees += 7) {
        const double radians = degrees * 3.14159265358979 / 180;
        engine.setNumber(t, radians);
        double fast = 0;
        int fastError = 0;
        try {
            fast = engine.evaluateNumber(compiled);
        } catch (const zg::RunTimeError& error) {
            fastError = error.number;
        }
        double general = 0;
        int generalError = 0;
        try {
            general = engine.evalNumber(GetParam());
        } catch (const zg::RunTimeError& error) {
            generalError = error.number;
        }
        EXPECT_EQ(fastError, generalError) << GetParam() << " at " << degrees;
        EXPECT_NEAR(fast, general, 1e-12 * std::max(1.0, std::abs(general)))
            << GetParam() << " at " << degrees;
    }
}

INSTANTIATE_TEST_SUITE_P(Formulas, SweptFormula,
                         ::testing::Values("4", "t", "sin(5*t)", "4*sin(2*t)", "t*5", "2*sin(3*t)+cos(t)^2",
                                           "exp(cos(t))-2*cos(4*t)+sin(t/12)^5", "1/t", "1/sin(t)", "log(t)",
                                           "sqr(t)", "sqr(abs(cos(2*t)))", "exp(t*200)", "1/exp(t*200)",
                                           "atn(exp(t*300))", "t^0.5", "t^-1", "t^2", "t^16", "(-t)^3",
                                           "a*cos(b*t)+c", "-t^2", "+t-1", "MathLib.pow(t,2)",
                                           "MathLib.Sec(t)", "MathLib.Radius(t,a)", "MathLib.Pi*t",
                                           "int(t)+fix(t)+sgn(t)+abs(t)", "tan(t)", "t Mod 3", "round(t, 2)",
                                           "t > 0", "u*t", "1e308*t*10", "MathLib.Radians(t)",
                                           "(t-1)*(t+1)/(t*t+1)", "a*t*(t+b)*t*t", "t*t*t", "(t*t)^2",
                                           "2-t*a", "sin(t)*t", "Rnd*0"));

}  // namespace
