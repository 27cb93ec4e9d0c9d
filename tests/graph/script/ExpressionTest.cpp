#include <gtest/gtest.h>

#include <string>

#include "tests/graph/script/ScriptSupport.h"

namespace {

using std::string_literals::operator""s;

TEST(Expression, UndefinedNamesAreEmpty) {
    EXPECT_EQ(evaluated("t"), "Empty");
    EXPECT_EQ(evaluated("t+1"), "Integer 1");
    EXPECT_EQ(evaluated("sin(t)"), "Double 0");
    EXPECT_EQ(evaluated("t & \"x\""), "String x");
    EXPECT_EQ(evalError("1/t"), "line 1, column 2: 11 Division by zero");
    EXPECT_EQ(evalError("log(t)"), "line 1, column 1: 5 Invalid procedure call or argument");
}

TEST(Expression, NothingIsEmpty) {
    EXPECT_EQ(evaluated(""), "Empty");
    EXPECT_EQ(evaluated("  ' only a comment"), "Empty");
    EXPECT_EQ(evaluated("\r\n1\n"), "Integer 1");
}

TEST(Expression, EqualsCompares) {
    zg::ScriptEngine engine;
    engine.AddCode("a = 2");
    EXPECT_EQ(shown(engine.Eval("a = 3")), "Boolean False");
    EXPECT_EQ(shown(engine.Eval("A")), "Integer 2");
}

TEST(Expression, NamesKnowNoCase) { EXPECT_EQ(evaluated("FOO + sIN(0)", "foo = 3"), "Double 3"); }

TEST(Expression, NumbersAreTakenFromAnyValue) {
    zg::ScriptEngine engine;
    EXPECT_EQ(engine.evalNumber("2.5"), 2.5);
    EXPECT_EQ(engine.evalNumber("unknown"), 0);
    EXPECT_EQ(engine.evalNumber("1=1"), -1);
    EXPECT_EQ(engine.evalNumber("\" 7 \""), 7);
    EXPECT_EQ(scriptError([&] { engine.evalNumber("\"x\""); }), "line 1, column 1: 13 Type mismatch");
    EXPECT_EQ(scriptError([&] { engine.evalNumber("Null"); }), "line 1, column 1: 94 Invalid use of Null");
}

struct Fault {
    const char* text;
    const char* error;
};

void PrintTo(const Fault& row, std::ostream* out) { *out << row.text; }

class ExpressionFault : public testing::TestWithParam<Fault> {};

TEST_P(ExpressionFault, IsReportedWhereItIs) { EXPECT_EQ(evalError(GetParam().text), GetParam().error); }

INSTANTIATE_TEST_SUITE_P(Syntax, ExpressionFault,
                         testing::Values(Fault{"1+", "line 1, column 3: 1002 Syntax error"},
                                         Fault{"*2", "line 1, column 1: 1002 Syntax error"},
                                         Fault{"1+*2", "line 1, column 3: 1002 Syntax error"},
                                         Fault{"(1+2", "line 1, column 5: 1006 Expected ')'"},
                                         Fault{"sin(t", "line 1, column 6: 1006 Expected ')'"},
                                         Fault{"sin(", "line 1, column 5: 1002 Syntax error"},
                                         Fault{"sin(1,)", "line 1, column 7: 1002 Syntax error"},
                                         Fault{"1+2)", "line 1, column 4: 1025 Expected end of statement"},
                                         Fault{"1 2", "line 1, column 3: 1025 Expected end of statement"},
                                         Fault{"12ab", "line 1, column 3: 1025 Expected end of statement"},
                                         Fault{"sin t", "line 1, column 5: 1025 Expected end of statement"},
                                         Fault{"1:2", "line 1, column 2: 1025 Expected end of statement"},
                                         Fault{"1\n+2", "line 2, column 1: 1025 Expected end of statement"},
                                         Fault{"()", "line 1, column 2: 1002 Syntax error"},
                                         Fault{"2^", "line 1, column 3: 1002 Syntax error"},
                                         Fault{"2^Not 1", "line 1, column 3: 1002 Syntax error"},
                                         Fault{"1 If 2", "line 1, column 3: 1025 Expected end of statement"},
                                         Fault{"Nothing", "line 1, column 1: 1002 Syntax error"},
                                         Fault{"t.5", "line 1, column 2: 1025 Expected end of statement"},
                                         Fault{"t.\"a\"", "line 1, column 3: 1010 Expected identifier"},
                                         Fault{"1+(2*\n3)", "line 1, column 6: 1002 Syntax error"},
                                         // The first error, not its consequences.
                                         Fault{")+?\"", "line 1, column 1: 1002 Syntax error"}));

INSTANTIATE_TEST_SUITE_P(RunTime, ExpressionFault,
                         testing::Values(Fault{"foo(1)", "line 1, column 1: 13 Type mismatch"},
                                         Fault{"1 + foo()", "line 1, column 5: 13 Type mismatch"},
                                         Fault{"1 +_\n", "line 1, column 4: 1032 Invalid character"},
                                         Fault{"1 + _\n 2 / _\n 0", "line 2, column 4: 11 Division by zero"},
                                         Fault{"1/0 + \"x\"*2", "line 1, column 2: 11 Division by zero"}));

TEST(ScriptError, ShowsThePlaceInItsLine) {
    zg::ScriptEngine engine;
    try {
        engine.AddCode("a = 1\r\nb = 2 + 1/0\r\nc = 3");
        FAIL() << "no error";
    } catch (const zg::ScriptError& error) {
        EXPECT_EQ(error.line, 2);
        EXPECT_EQ(error.column, 10);
        EXPECT_EQ(error.snippet, "b = 2 + 1/0\n         ^");
        EXPECT_EQ(error.description, "Division by zero");
        EXPECT_STREQ(error.what(), "Division by zero");
    }
}

TEST(ScriptError, ShowsPartOfALongLine) {
    const std::string text = std::string(500, ' ') + "1/0" + std::string(500, ' ');
    zg::ScriptEngine engine;
    try {
        engine.Eval(text);
        FAIL() << "no error";
    } catch (const zg::ScriptError& error) {
        EXPECT_EQ(error.column, 502);
        EXPECT_EQ(error.snippet,
                  std::string(39, ' ') + "1/0" + std::string(38, ' ') + "\n" + std::string(40, ' ') + "^");
    }
}

TEST(ScriptError, CountsEveryKindOfLineEnd) {
    const auto lineOf = [](std::string_view text, std::size_t offset) {
        const zg::ScriptError error(zg::ScriptErrorNumber::SyntaxError, text, offset);
        return std::to_string(error.line) + ":" + std::to_string(error.column);
    };
    EXPECT_EQ(lineOf("a\nb\rc\r\nd", 0), "1:1");
    EXPECT_EQ(lineOf("a\nb\rc\r\nd", 2), "2:1");
    EXPECT_EQ(lineOf("a\nb\rc\r\nd", 4), "3:1");
    EXPECT_EQ(lineOf("a\nb\rc\r\nd", 6), "3:3");
    EXPECT_EQ(lineOf("a\nb\rc\r\nd", 7), "4:1");
    EXPECT_EQ(lineOf("a\nb\rc\r\nd", 99), "4:2");
}

TEST(ScriptError, KnowsItsDescriptions) {
    using zg::ScriptErrorNumber;
    EXPECT_STREQ(zg::errorDescription(ScriptErrorNumber::OutOfMemory), "Out of memory");
    EXPECT_STREQ(zg::errorDescription(ScriptErrorNumber::ExpectedOpenParenthesis), "Expected '('");
    EXPECT_STREQ(zg::errorDescription(static_cast<ScriptErrorNumber>(4711)),
                 "Application-defined or object-defined error");
}

}  // namespace
