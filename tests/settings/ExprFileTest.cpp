#include "settings/ExprFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/TempDirectory.h"

namespace {

using namespace zg;
using Expressions = std::vector<std::string>;

class ExprFileTest : public testing::Test {
 protected:
    std::string path() const { return directory_.file("user.expr"); }
    Expressions read(const std::string& bytes) const {
        return readExpressions(directory_.write("user.expr", bytes));
    }
    std::size_t files() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(directory_.path()), {}));
    }

    TempDirectory directory_;
};

TEST_F(ExprFileTest, HoldsItsKindAndARecordAnExpression) {
    EXPECT_TRUE(writeExpressions(path(), {"sin(t)", "a, b", ""}));
    EXPECT_EQ(directory_.read("user.expr"), "\"Polar Graph 1.0\"\r\n\"sin(t)\"\r\n\"a, b\"\r\n\"\"\r\n");
    EXPECT_EQ(readExpressions(path()), (Expressions{"sin(t)", "a, b", ""}));
    EXPECT_TRUE(writeExpressions(path(), {}));
    EXPECT_EQ(directory_.read("user.expr"), "\"Polar Graph 1.0\"\r\n");
    EXPECT_EQ(readExpressions(path()), Expressions());
    EXPECT_EQ(files(), 1U) << "nothing else is left";
}

TEST_F(ExprFileTest, OfAnotherKindOrNoneHasNoExpressions) {
    EXPECT_EQ(readExpressions(path()), Expressions());
    EXPECT_EQ(read(""), Expressions());
    EXPECT_EQ(read("\"Polar Graph 1.1\"\r\n\"t\"\r\n"), Expressions());
    EXPECT_EQ(read("\"Polar Graph 1.0\"\r\nt\r\n\"2*t\"\r\n"), (Expressions{"t", "2*t"}));
}

TEST_F(ExprFileTest, WithoutItsDirectoryIsNotWritten) {
    EXPECT_FALSE(writeExpressions(directory_.file("missing/user.expr"), {"t"}));
    EXPECT_EQ(files(), 0U);
}

TEST_F(ExprFileTest, ThatCannotBeReplacedLeavesNothingBeside) {
    std::filesystem::create_directories(directory_.file("user.expr/x"));
    EXPECT_FALSE(writeExpressions(path(), {"t"}));
    EXPECT_TRUE(std::filesystem::is_directory(path()));
    EXPECT_EQ(files(), 1U);
}

TEST(SameExpression, LetterCaseAndBlanksDoNotCount) {
    EXPECT_TRUE(sameExpression("Sin( t )", "sin(T)"));
    EXPECT_TRUE(sameExpression("", "  "));
    EXPECT_FALSE(sameExpression("sin(t)", "cos(t)"));
    EXPECT_FALSE(sameExpression("t", "t+1"));
}

}  // namespace
