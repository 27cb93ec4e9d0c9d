#include "graph/script/Compiler.h"
#include "tests/graph/script/Engine.h"

namespace {

std::string repeated(const std::string& part, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += part;
    return text;
}

TEST(Limits, NestingEndsInACleanErrorWithItsColumn) {
    Engine engine;
    const std::string error = engine.errorOfEval(repeated("(", 10000) + "1" + repeated(")", 10000));
    EXPECT_EQ(error, "28 1:" + std::to_string(zg::deepestNesting + 1));
    EXPECT_EQ(engine.errorOfEval(repeated("-", 100000) + "1"), error);
    EXPECT_EQ(engine.eval(repeated("(", 150) + "1" + repeated(")", 150)), "Integer 1");
    EXPECT_EQ(engine.errorOfCode(repeated("If 1 Then ", 10000)).substr(0, 3), "28 ");
    EXPECT_EQ(engine.errorOfCode(repeated("Do\n", 10000)).substr(0, 3), "28 ");
}

TEST(Limits, ALongExpressionIsNoDeepOne) {
    Engine engine;
    EXPECT_EQ(engine.eval("0" + repeated("+1", 500000)), "Long 500000") << "a megabyte";
    EXPECT_EQ(engine.eval("x" + repeated("+1", 500000)), "Long 500000");
}

TEST(Limits, ASourceOfManyMegabytesIsRefused) {
    Engine engine;
    EXPECT_EQ(engine.errorOfEval(std::string(9000000, ' ') + "1"), "7 1:9000001");
}

TEST(Limits, AnEndlessLoopEndsByTheTimeOut) {
    Engine engine;
    engine.script.Timeout = 50;
    zg::ScriptEngine ticking([now = std::int64_t{0}]() mutable { return ++now; });
    ticking.Timeout = 50;
    try {
        ticking.AddCode("Do\na = a + 1\nLoop");
        FAIL();
    } catch (const zg::ScriptError& error) {
        EXPECT_EQ(error.number, 32811);
        EXPECT_EQ(error.description, "The script ran out of time");
    }
    EXPECT_GT(ticking.EvalNumber("a"), 0) << "the engine goes on with what there is";
    ticking.Timeout = -1;
    ticking.AddCode("For i = 1 To 100000: Next");
    EXPECT_EQ(ticking.EvalNumber("i"), 100001) << "without a limit nothing is cut off";
}

TEST(Limits, EndlessRecursionIsOutOfStackSpace) {
    Engine engine;
    engine.script.AddCode("Function f(x): f = f(x + 1): End Function");
    EXPECT_EQ(engine.errorOfEval("f(1)").substr(0, 3), "28 ");
    engine.script.AddCode("Sub s: s: End Sub");
    EXPECT_EQ(engine.errorOfCode("s").substr(0, 3), "28 ");
    EXPECT_EQ(engine.eval("1"), "Integer 1");
}

TEST(Limits, StringsThatGrowWithoutEndAreOutOfMemory) {
    Engine engine;
    EXPECT_EQ(engine.errorOfCode("a = \"x\"\nDo\na = a & a\nLoop"), "7 3:7");
    EXPECT_EQ(engine.errorOfEval("Space(2000000000)"), "7 1:1");
    EXPECT_EQ(engine.errorOfEval("Replace(Space(10000000), \" \", \"12345678\")"), "7 1:1");
}

}  // namespace
