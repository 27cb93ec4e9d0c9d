#include "graph/script/Lexer.h"

#include <gtest/gtest.h>

#include "tests/graph/script/ScriptSupport.h"

namespace {

using zg::script::TokenKind;

class Literals : public testing::TestWithParam<Evaluation> {};

TEST_P(Literals, GiveValueAndWidth) { EXPECT_EQ(evaluated(GetParam().expression), GetParam().result); }

INSTANTIATE_TEST_SUITE_P(
    Numbers, Literals,
    testing::Values(Evaluation{"0", "Integer 0"}, Evaluation{"007", "Integer 7"},
                    Evaluation{"1.5", "Double 1.5"}, Evaluation{".5", "Double 0.5"},
                    Evaluation{"5.", "Double 5"}, Evaluation{"2.0", "Double 2"},
                    Evaluation{"1.74532925199433E-02", "Double 1.74532925199433E-02"},
                    Evaluation{"1e3", "Double 1000"}, Evaluation{"1E+3", "Double 1000"},
                    Evaluation{"1.e2", "Double 100"}, Evaluation{"99999999999", "Double 99999999999"},
                    Evaluation{"1E-400", "Double 0"}, Evaluation{"&HFF", "Integer 255"},
                    Evaluation{"&hffff", "Integer -1"}, Evaluation{"&H8000", "Integer -32768"},
                    Evaluation{"&HFFFF&", "Long 65535"}, Evaluation{"&H10000", "Long 65536"},
                    Evaluation{"&HFFFFFFFF", "Long -1"}, Evaluation{"&O17", "Integer 15"},
                    Evaluation{"&o200000", "Long 65536"}, Evaluation{"1 &2", "String 12"}));

INSTANTIATE_TEST_SUITE_P(
    Words, Literals,
    testing::Values(Evaluation{"\"\"", "String "}, Evaluation{"\"a\"\"b\"", "String a\"b"},
                    Evaluation{"\"it's\"", "String it's"}, Evaluation{"True", "Boolean True"},
                    Evaluation{"fAlSe", "Boolean False"}, Evaluation{"Empty", "Empty"},
                    Evaluation{"NULL", "Null"}, Evaluation{"1 ' a comment", "Integer 1"},
                    Evaluation{"1 + _\r\n 2", "Integer 3"}, Evaluation{"1 + _ \n2", "Integer 3"},
                    Evaluation{" 1 Rem the rest", "Integer 1"}, Evaluation{"\t1\t", "Integer 1"}));

TEST(Lexer, KeepsEveryTokensSpan) {
    zg::script::Lexer lexer("Ab <= 1.5:'c\n\"x\"");
    struct Span {
        TokenKind kind;
        std::size_t offset;
        std::size_t end;
    };
    const Span expected[] = {{TokenKind::Identifier, 0, 2}, {TokenKind::LessEqual, 3, 5},
                             {TokenKind::Number, 6, 9},     {TokenKind::Colon, 9, 10},
                             {TokenKind::LineEnd, 12, 13},  {TokenKind::Text, 13, 16},
                             {TokenKind::End, 16, 16},      {TokenKind::End, 16, 16}};
    for (const Span& span : expected) {
        const zg::script::Token token = lexer.next();
        EXPECT_EQ(token.kind, span.kind) << span.offset;
        EXPECT_EQ(token.offset, span.offset);
        EXPECT_EQ(token.end, span.end);
    }
}

TEST(Lexer, NamesAreLowerCase) {
    zg::script::Lexer lexer("FooBar_1");
    EXPECT_EQ(lexer.next().text, "foobar_1");
}

TEST(LexerErrors, StandWhereTheTokenBegins) {
    EXPECT_EQ(evalError("1+\"abc"), "line 1, column 3: 1033 Unterminated string constant");
    EXPECT_EQ(evalError("\"abc\n\""), "line 1, column 1: 1033 Unterminated string constant");
    EXPECT_EQ(evalError("1+\"a\"\""), "line 1, column 3: 1033 Unterminated string constant");
    EXPECT_EQ(evalError("2*1E"), "line 1, column 3: 1031 Invalid number");
    EXPECT_EQ(evalError("1E+"), "line 1, column 1: 1031 Invalid number");
    EXPECT_EQ(evalError("&HFFFFFFFFF"), "line 1, column 1: 1031 Invalid number");
    EXPECT_EQ(evalError("&H1G"), "line 1, column 1: 1031 Invalid number");
    EXPECT_EQ(evalError("1E400"), "line 1, column 1: 6 Overflow");
    EXPECT_EQ(evalError("1+?"), "line 1, column 3: 1032 Invalid character");
    EXPECT_EQ(evalError("a_b+_c"), "line 1, column 5: 1032 Invalid character");
    EXPECT_EQ(evalError("1 _ 2\n"), "line 1, column 3: 1032 Invalid character");
    EXPECT_EQ(evalError(std::string_view("1+\0", 3)), "line 1, column 3: 1032 Invalid character");
    EXPECT_EQ(evalError("[t]"), "line 1, column 1: 1032 Invalid character");
    EXPECT_EQ(evalError("#1/1/2000#"), "line 1, column 1: 1032 Invalid character");
}

TEST(LexerErrors, CountUtf8SequencesAsOneColumn) {
    EXPECT_EQ(evalError("\xC3\xA4"), "line 1, column 1: 1032 Invalid character");
    EXPECT_EQ(evalError("\"\xC3\xA4\xE2\x82\xAC\"+\xC3\xB6"), "line 1, column 6: 1032 Invalid character");
    EXPECT_EQ(evalError("sin(\xCF\x80)"), "line 1, column 5: 1032 Invalid character");
}

}  // namespace
