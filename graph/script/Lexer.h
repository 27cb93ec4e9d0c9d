#pragma once

#include <string>
#include <string_view>

#include "graph/script/ScriptError.h"
#include "graph/script/Value.h"

namespace zg {

enum class Token {
    End,
    EndOfLine,
    Colon,
    Number,
    Text,
    Name,
    Plus,
    Minus,
    Times,
    Slash,
    Backslash,
    Caret,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    Open,
    Close,
    Comma,
    Dot,
    And,
    ByRef,
    ByVal,
    Call,
    Case,
    Const,
    Dim,
    Do,
    Else,
    ElseIf,
    Empty,
    EndWord,
    Eqv,
    Exit,
    False,
    For,
    Function,
    If,
    Imp,
    Is,
    Let,
    Loop,
    Mod,
    Next,
    Not,
    Null,
    Option,
    Or,
    Select,
    Sub,
    Then,
    To,
    True,
    Until,
    Wend,
    While,
    Xor
};

/// Cuts a script into tokens. Letter case does not count in names; they come out in lower case.
class Lexer {
 public:
    explicit Lexer(std::string_view source) : source_(source) { next(); }

    /// The token on hand, its value and where it begins.
    Token token() const { return token_; }
    const Value& value() const { return value_; }      ///< of Number and Text
    const std::string& name() const { return name_; }  ///< of Name
    ScriptPosition position() const { return position_; }

    /// Goes on to the next token; raises the error of a character, number or text that is none.
    void next();

    /// Throws with the place of the token on hand.
    [[noreturn]] void fail(ScriptErrorNumber number) const { fail(number, position_); }
    [[noreturn]] void fail(ScriptErrorNumber number, ScriptPosition position) const;

    /// The source line of that number, cut where it is very long.
    std::string sourceLine(int line) const;

 private:
    bool skipBlanks();
    bool skipContinuation();
    void skipComment();
    void readNumber();
    void readPrefixedNumber();
    void readText();
    void readName();
    void readOperator();
    char peek(std::size_t ahead = 0) const {
        return at_ + ahead < source_.size() ? source_[at_ + ahead] : '\0';
    }

    std::string_view source_;
    std::size_t at_ = 0;
    std::size_t lineStart_ = 0;
    int line_ = 1;
    Token token_ = Token::End;
    Value value_;
    std::string name_;
    ScriptPosition position_;
};

}  // namespace zg
