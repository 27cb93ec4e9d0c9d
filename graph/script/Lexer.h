#pragma once

#include <string_view>

#include "graph/script/Token.h"

namespace zg::script {

/// Splits a text into tokens. Blanks, comments and continued line ends are skipped.
class Lexer {
 public:
    /// The text must outlive the lexer.
    explicit Lexer(std::string_view text) : text_(text) {}

    std::string_view text() const { return text_; }

    /// The next token; End repeatedly at the end. Raises a ScriptError for a character that cannot begin a
    /// token.
    Token next();

    /// Continues after a token that was returned before.
    void rewindTo(const Token& token) { offset_ = token.end; }

 private:
    void skipBlanks();
    bool skipContinuation();
    void skipComment();
    Token made(TokenKind kind, std::size_t length);
    Token word();
    Token number();
    Token radixNumber(int base);
    Token textConstant();
    Token symbol();
    std::size_t identifierEnd(std::size_t from) const;
    char at(std::size_t offset) const { return offset < text_.size() ? text_[offset] : '\0'; }

    std::string_view text_;
    std::size_t offset_ = 0;
};

}  // namespace zg::script
