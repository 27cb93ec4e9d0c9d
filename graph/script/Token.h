#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "graph/script/Value.h"

namespace zg::script {

enum class TokenKind : std::uint8_t {
    End,      ///< of the text
    LineEnd,  ///< of a line
    Colon,
    Identifier,
    Number,
    Text,
    OpenParenthesis,
    CloseParenthesis,
    Comma,
    Dot,
    Plus,
    Minus,
    Star,
    Slash,
    Backslash,
    Caret,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessEqual,
    GreaterEqual,
    // Words.
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
    Let,
    Loop,
    Mod,
    Next,
    Not,
    Null,
    Option,
    Or,
    Private,
    Public,
    Select,
    Set,
    Sub,
    Then,
    To,
    True,
    Until,
    Wend,
    While,
    Xor,
    Reserved,  ///< a word of the wider language that is not supported here
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::size_t offset = 0;  ///< of its first byte in the text
    std::size_t end = 0;     ///< of the byte after it
    Value number;            ///< of a Number, in the narrowest type that holds it
    std::string text;        ///< an Identifier or word in lower case; the contents of a Text
};

}  // namespace zg::script
