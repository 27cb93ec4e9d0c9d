#include "graph/control/EquationCheck.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "graph/control/CurveTable.h"

namespace zg {
namespace {

const ScriptEngine::Clock still = [] { return std::int64_t{0}; };

TEST(EquationCheck, PassesGoodTextsAndADivisionByZeroOfTheEquation) {
    EXPECT_FALSE(checkEquation("", "sin(t)", still));
    EXPECT_FALSE(checkEquation(" a=2:b=3 ", " a/t ", still));
}

TEST(EquationCheck, NothingDividedByNothingIsADivisionByZeroOfTheEquationToo) {
    EXPECT_FALSE(checkEquation("", "sin(t)/t", still));
    EXPECT_FALSE(checkEquation("a=2", "a + 0/0", still));
    const auto inCode = checkEquation("a=0/0", "1", still);
    ASSERT_TRUE(inCode);
    EXPECT_EQ(inCode->where, EquationFault::Where::Coefficient);
    const auto overflow = checkEquation("", "1E308*10", still);
    ASSERT_TRUE(overflow) << "another overflow is one";
    EXPECT_EQ(overflow->description, "Overflow");
    EXPECT_EQ(expressionFault("sin(t)/t", still), "Overflow") << "the list of expressions forgives nothing";
}

TEST(EquationCheck, TellsWhichTextIsAtFaultAndWhere) {
    const auto inCode = checkEquation("a=1/0", "1", still);
    ASSERT_TRUE(inCode);
    EXPECT_EQ(inCode->where, EquationFault::Where::Coefficient) << "a division by zero counts there";
    EXPECT_EQ(inCode->column, 4);
    const auto inEquation = checkEquation("", "  log(t)", still);
    ASSERT_TRUE(inEquation);
    EXPECT_EQ(inEquation->where, EquationFault::Where::Equation);
    EXPECT_EQ(inEquation->column, 1) << "of the trimmed text";
    EXPECT_EQ(inEquation->description, "Invalid procedure call or argument");
}

TEST(EquationCheck, AnEndlessLoopEndsByTheTimeOut) {
    const auto fault = checkEquation("Do: Loop", "1", [now = std::int64_t{0}]() mutable { return ++now; });
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->where, EquationFault::Where::Coefficient);
}

TEST(EquationCheck, AnExpressionOfItsOwnIsForgivenNothing) {
    EXPECT_EQ(expressionFault(" 2*sin(t) ", still), "");
    EXPECT_EQ(expressionFault("1/t", still), "Division by zero");
}

TEST(CurveTable, SweepsInSinglePrecisionDownwardsToo) {
    GrapInfo graph;
    graph.Equation = "1";
    graph.StartingAngle = 180;
    graph.EndingAngle = 0;
    graph.Step = -90;
    const auto rows = tabulateCurve(graph, still);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[1].angle, 90);
    EXPECT_EQ(rows[1].y, 1);
    graph.StartingAngle = 0;
    graph.EndingAngle = 1;
    graph.Step = 0.1F;
    EXPECT_EQ(tabulateCurve(graph, still).size(), 10U) << "ten steps of 0.1 add up to a little over 1";
}

TEST(CurveTable, RoundsToFourDecimals) {
    GrapInfo graph;
    graph.Equation = "2/3";
    graph.EndingAngle = 45;
    graph.Step = 45;
    const auto rows = tabulateCurve(graph, still);
    EXPECT_EQ(rows[1].x, 0.4714);
    EXPECT_EQ(rows[1].radius, 0.6667);
}

TEST(CurveTable, ErrorsReachTheCaller) {
    GrapInfo graph;
    graph.Equation = "1";
    graph.Step = 0;
    EXPECT_THROW(tabulateCurve(graph, still), RunTimeError);
    graph.Step = 1;
    graph.Coefficient = "a=";
    EXPECT_THROW(tabulateCurve(graph, still), RunTimeError);
}

}  // namespace
}  // namespace zg
