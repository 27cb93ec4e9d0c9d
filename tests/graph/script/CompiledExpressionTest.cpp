#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/graph/script/ScriptSupport.h"
#include "tests/support/Raises.h"

namespace {

class Sweep : public testing::Test {
 protected:
    Sweep() { engine.AddObject("MathLib", {}); }

    zg::ScriptEngine engine;
};

TEST_F(Sweep, EvaluatesForEveryT) {
    const zg::VariableSlot t = engine.slot("T");
    zg::CompiledExpression expression = engine.compile("2*sin(3*t)+cos(t)^2");
    for (int i = 0; i <= 360; ++i) {
        const double angle = i * 3.14159265358979 / 180;
        engine.setNumber(t, angle);
        EXPECT_EQ(engine.evaluateNumber(expression),
                  2 * std::sin(3 * angle) + std::cos(angle) * std::cos(angle));
    }
    EXPECT_TRUE(zg::ScriptEngine::isNumericForm(expression));
}

TEST_F(Sweep, ReadsTheVariablesOfTheCode) {
    const zg::VariableSlot t = engine.slot("t");
    engine.AddCode("a=2:b=3");
    zg::CompiledExpression expression = engine.compile("a*t+b");
    engine.setNumber(t, 5);
    EXPECT_EQ(engine.evaluateNumber(expression), 13);
    engine.AddCode("a=4: t=1");
    EXPECT_EQ(engine.evaluateNumber(expression), 7);
    engine.AddCode("b=\"10\"");
    EXPECT_EQ(engine.evaluateNumber(expression), 14);
    engine.AddCode("b=Empty");
    EXPECT_EQ(engine.evaluateNumber(expression), 4);
    engine.AddCode("b=True");
    EXPECT_EQ(engine.evaluateNumber(expression), 3);
    engine.AddCode("b=CSng(0.1)");
    EXPECT_EQ(engine.evaluateNumber(expression), static_cast<double>(4.1F));
}

TEST_F(Sweep, MayBeMoved) {
    zg::CompiledExpression first = engine.compile("sin(2*x)+3*MathLib.Radius(x, 4)*cos(x)");
    engine.AddCode("x=3");
    const double expected = std::sin(6.0) + 3 * 5 * std::cos(3.0);
    EXPECT_EQ(engine.evaluateNumber(first), expected);
    zg::CompiledExpression second = std::move(first);
    EXPECT_EQ(engine.evaluateNumber(second), expected);
}

TEST_F(Sweep, ErrorsComeOutWithTheirPlace) {
    const zg::VariableSlot t = engine.slot("t");
    zg::CompiledExpression expression = engine.compile("2 + 1/t");
    engine.setNumber(t, 0);
    EXPECT_EQ(scriptError([&] { engine.evaluateNumber(expression); }),
              "line 1, column 6: 11 Division by zero");
    engine.setNumber(t, 4);
    EXPECT_EQ(engine.evaluateNumber(expression), 2.25);
    EXPECT_EQ(scriptError([&] { engine.compile("2 + *"); }), "line 1, column 5: 1002 Syntax error");
}

/// An undetected overflow in an intermediate step would end in an ordinary number again.
TEST_F(Sweep, NoOverflowIsSwallowed) {
    const zg::VariableSlot t = engine.slot("t");
    engine.setNumber(t, 1e308);
    for (const char* const text :
         {"1/(t*10)", "atn(t*10)", "exp(-t*10)", "sgn(t*10)", "(t*10)^-1", "1^(t*10)", "t*10>1", "-1/(-t*10)",
          "(t*10)^0", "MathLib.Sec(t*10)", "t/(t*t)", "1 + t^2*0", "atn(t^3)", "1/t^5", "exp(-(t+t))",
          "Not (t*10)", "exp(-t^4)"}) {
        zg::CompiledExpression expression = engine.compile(text);
        EXPECT_TRUE(zg::ScriptEngine::isNumericForm(expression)) << text;
        EXPECT_NE(scriptError([&] { engine.evaluateNumber(expression); }).find(": 6 Overflow"),
                  std::string::npos)
            << text;
    }
}

TEST_F(Sweep, ResultIsTakenAsANumber) {
    const auto number = [this](const char* text) {
        zg::CompiledExpression expression = engine.compile(text);
        return engine.evaluateNumber(expression);
    };
    EXPECT_EQ(number(""), 0);
    EXPECT_EQ(number("1=1"), -1);
    EXPECT_EQ(number("\"2\" & \"5\""), 25);
    EXPECT_EQ(number("unknown"), 0);
    EXPECT_EQ(scriptError([&] { number("\"x\""); }), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(scriptError([&] { number("Null"); }), "line 1, column 1: 94 Invalid use of Null");
    EXPECT_EQ(scriptError([&] { number("MathLib"); }),
              "line 1, column 1: 438 Object doesn't support this property or method");
}

TEST_F(Sweep, NamesMeanWhatTheyMeanNow) {
    zg::CompiledExpression expression = engine.compile("sin(0)+k");
    EXPECT_EQ(engine.evaluateNumber(expression), 0);
    engine.AddCode("Function sin(x): sin=7: End Function: Const k=2");
    EXPECT_EQ(engine.evaluateNumber(expression), 9);
    engine.AddCode("Function k: k=100: End Function");
    EXPECT_EQ(engine.evaluateNumber(expression), 107);
    engine.AddCode("Dim k: k=1");
    EXPECT_EQ(engine.evaluateNumber(expression), 8);
}

TEST_F(Sweep, AVariableMayHoldTheObject) {
    zg::CompiledExpression expression = engine.compile("m.Diameter(4)");
    EXPECT_EQ(scriptError([&] { engine.evaluateNumber(expression); }),
              "line 1, column 3: 424 Object required");
    engine.AddCode("Set m = MathLib");
    EXPECT_EQ(engine.evaluateNumber(expression), 8);
}

TEST_F(Sweep, SlotsAreVariablesOnly) {
    engine.AddCode("Const k=2: Function f: f=1: End Function");
    EXPECT_RAISES(501, "Illegal assignment", engine.slot("K"));
    EXPECT_RAISES(501, "Illegal assignment", engine.slot("f"));
    EXPECT_RAISES(501, "Illegal assignment", engine.slot("MathLib"));
    const zg::VariableSlot t = engine.slot("t");
    engine.AddCode("Const t=1");
    EXPECT_RAISES(501, "Illegal assignment", engine.setNumber(t, 2));
}

TEST_F(Sweep, ASlotIsSeenByProcedures) {
    engine.AddCode("Function f: f=t*2: End Function");
    const zg::VariableSlot t = engine.slot("t");
    zg::CompiledExpression expression = engine.compile("f+1");
    engine.setNumber(t, 3);
    EXPECT_EQ(engine.evaluateNumber(expression), 7);
    EXPECT_FALSE(zg::ScriptEngine::isNumericForm(expression));
}

TEST_F(Sweep, ASlotMayHideAFunction) {
    const zg::VariableSlot rnd = engine.slot("rnd");
    engine.setNumber(rnd, 3);
    EXPECT_EQ(shown(engine.Eval("rnd*2")), "Double 6");
}

struct Formula {
    const char* text;
};

void PrintTo(const Formula& row, std::ostream* out) { *out << row.text; }

/// The fast form gives exactly the machine's result.
class BothForms : public testing::TestWithParam<Formula> {};

TEST_P(BothForms, Agree) {
    zg::ScriptEngine engine;
    engine.AddObject("MathLib", {});
    engine.AddCode("a=2: b=-3.5: c=100000: e=Empty: f=True");
    const zg::VariableSlot t = engine.slot("t");
    zg::CompiledExpression compiled = engine.compile(GetParam().text);
    EXPECT_TRUE(zg::ScriptEngine::isNumericForm(compiled));
    for (const double value : {0.0, 1.0, -1.0, 0.5, 2.5, -7.25, 100.0, 1e-9, 40000.0, 3e9, 1e200}) {
        engine.setNumber(t, value);
        double general = 0;
        double fast = 0;
        const std::string generalError = scriptError([&] { general = engine.evalNumber(GetParam().text); });
        EXPECT_EQ(scriptError([&] { fast = engine.evaluateNumber(compiled); }), generalError) << value;
        EXPECT_EQ(fast, general) << value;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Formulas, BothForms,
    testing::Values(Formula{"4"}, Formula{"t"}, Formula{"-t"}, Formula{"+t"}, Formula{"t+1"}, Formula{"1+t"},
                    Formula{"t-a"}, Formula{"a-t"}, Formula{"t*t"}, Formula{"t/3"}, Formula{"3/t"},
                    Formula{"2*t+1"}, Formula{"1+2*t"}, Formula{"t^2"}, Formula{"t^3"}, Formula{"t^4"},
                    Formula{"t^5"}, Formula{"t^6"}, Formula{"2*t^2"}, Formula{"t^2*2"}, Formula{"t^1.5"},
                    Formula{"2^t"}, Formula{"t^t"}, Formula{"t^-1"}, Formula{"-t^2"}, Formula{"sin(5*t)"},
                    Formula{"cos(5*t)"}, Formula{"sin(t)"}, Formula{"cos(t)"}, Formula{"sin(t+1)"},
                    Formula{"cos(t+1)"}, Formula{"tan(t)"}, Formula{"atn(t)"}, Formula{"exp(t)"},
                    Formula{"log(t)"}, Formula{"sqr(t)"}, Formula{"abs(t)"}, Formula{"int(t)"},
                    Formula{"fix(t)"}, Formula{"sgn(t)"}, Formula{"round(t)"}, Formula{"cint(t)"},
                    Formula{"clng(t)"}, Formula{"cdbl(t)"}, Formula{"cbyte(t)"}, Formula{"cbool(t)"}));

INSTANTIATE_TEST_SUITE_P(
    Longer, BothForms,
    testing::Values(
        Formula{"exp(cos(t))-2*cos(4*t)+sin(t/12)^5"}, Formula{"2*sin(3*t)+cos(t)^2"},
        Formula{"abs(sin(t))*3+1"}, Formula{"sqr(abs(cos(2*t)))"}, Formula{"t^3-2*t^2+t"},
        Formula{"(1+t)*(2+t)*(3+t)*(4+t)"}, Formula{"((1+t)/(2+t))-((3+t)/(4-t))"},
        Formula{"1-(2-(3-(4-(5-sin(t)))))"}, Formula{"sin(t)/(cos(t)/(tan(t)/t))"}, Formula{"2*3*t*4*5"},
        Formula{"a*b*c*t"}, Formula{"e+f+t"}, Formula{"e*t/f"}, Formula{"t\\3"}, Formula{"3\\t"},
        Formula{"t Mod 3"}, Formula{"t=1"}, Formula{"t<>1"}, Formula{"t<1"}, Formula{"t>1"}, Formula{"t<=1"},
        Formula{"t>=1"}, Formula{"Not t"}, Formula{"t And 3"}, Formula{"t Or 3"}, Formula{"t Xor 3"},
        Formula{"t Eqv 3"}, Formula{"t Imp 3"}, Formula{"(t>0)*t-(t<=0)*sin(t)"}, Formula{"MathLib.Pi*t"},
        Formula{"MathLib.Radians(t)"}, Formula{"MathLib.pow(t,a)"},
        Formula{"MathLib.Radius(sin(t),cos(t))+sin(t)"}, Formula{"1+MathLib.Radius(3*t,MathLib.Pi)"},
        Formula{"MathLib.Sec(t)+MathLib.Csc(t)*MathLib.Cot(t)"},
        Formula{"MathLib.Area(t)-MathLib.Circumference(t)"}, Formula{"sin(t)^sin(t)"},
        Formula{"(sin(t)+2)^(cos(t)+2)"}, Formula{"sin(cos(t))^3+sin(cos(t))^4"}, Formula{"t*t+t*t"},
        Formula{"&HFF+True+Empty+t"}, Formula{"sin(MathLib.Degrees(t))*MathLib.Diameter(t)"}));

TEST_F(Sweep, FormulasBeyondNumbersHaveNoFastForm) {
    for (const char* const text : {"\"1\"", "Null", "t & 1", "rnd", "rnd*t", "1/0", "log(0)", "f(t)",
                                   "csng(t)", "round(t,1)", "len(t)", "t.x", "1E308*10", "sin(1,2)", ""})
        EXPECT_FALSE(zg::ScriptEngine::isNumericForm(engine.compile(text))) << text;
}

TEST_F(Sweep, AVeryLongFormulaGoesWithoutTheFastForm) {
    std::string text = "t";
    for (int i = 0; i < 3000; ++i) text += "+1";
    zg::CompiledExpression expression = engine.compile(text);
    EXPECT_FALSE(zg::ScriptEngine::isNumericForm(expression));
    EXPECT_EQ(engine.evaluateNumber(expression), 3000);
}

TEST(ScriptEngine, KnowsOneLanguage) {
    zg::ScriptEngine engine;
    EXPECT_EQ(engine.Language(), "VBScript");
    engine.Language("vbscript");
    EXPECT_EQ(engine.Language(), "VBScript");
    EXPECT_RAISES(380, "Invalid property value", engine.Language("JScript"));
    EXPECT_RAISES(380, "Invalid property value", engine.Language(""));
}

TEST(ScriptEngine, EnginesAreApart) {
    zg::ScriptEngine first;
    zg::ScriptEngine second;
    first.AddCode("a=1: Function sin(x): sin=9: End Function");
    EXPECT_EQ(shown(second.Eval("a+sin(0)")), "Double 0");
}

TEST(ScriptEngine, ValuesOutliveIt) {
    zg::script::Value value;
    {
        zg::ScriptEngine engine;
        value = engine.Eval("\"abc\" & \"def\"");
    }
    EXPECT_EQ(shown(value), "String abcdef");
}

}  // namespace
