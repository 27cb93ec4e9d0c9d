#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "graph/script/Lexer.h"
#include "graph/script/ScriptError.h"
#include "graph/script/Syntax.h"

namespace zg::script {

/// Parses statements. Raises a ScriptError at the first error.
Syntax parseCode(std::string_view text);

/// Parses one expression; `expression` stays empty for a text without one.
Syntax parseExpression(std::string_view text);

/// The state shared by the parts of the parser: the current token and the output so far.
class ParserBase {
 protected:
    explicit ParserBase(std::string_view text);

    bool at(TokenKind kind) const { return token_.kind == kind; }
    void advance() { token_ = lexer_.next(); }
    bool accept(TokenKind kind);
    /// Takes a word that has a meaning only in certain positions and is a name elsewhere.
    bool acceptWord(std::string_view lowerCase);
    void expect(TokenKind kind, ScriptErrorNumber otherwise);
    [[noreturn]] void fail(ScriptErrorNumber number) const { failAt(number, token_.offset); }
    [[noreturn]] void failAt(ScriptErrorNumber number, std::size_t offset) const {
        throw ScriptError(number, lexer_.text(), offset);
    }
    std::uint32_t offset() const { return static_cast<std::uint32_t>(token_.offset); }
    std::uint32_t nameIndex(const std::string& name);
    std::uint32_t constantIndex(Value value);
    /// Takes an identifier.
    std::uint32_t expectName();

    /// Counts one level of nesting during its lifetime.
    class Nesting {
     public:
        explicit Nesting(ParserBase& parser);
        ~Nesting() { --parser_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

     private:
        ParserBase& parser_;
    };

    Lexer lexer_;
    Token token_;
    Syntax syntax_;

 private:
    std::unordered_map<std::string, std::uint32_t> nameIndexes_;
    int nesting_ = 0;
};

/// Expressions, by precedence climbing over one table of operators.
class ExpressionParser : protected ParserBase {
 protected:
    using ParserBase::ParserBase;

    Expression expression();
    /// The arguments in parentheses, starting at the opening one and including the closing one.
    std::uint8_t argumentsInParentheses(bool mayBeReferences);
    /// Arguments up to the end of the statement.
    std::uint8_t argumentList(bool mayBeReferences);
    /// What may follow a name that was just taken: arguments and members.
    void namePostfix(std::uint32_t name, std::uint32_t nameOffset);
    bool startsExpression() const;
    void add(Node node) { syntax_.nodes.push_back(node); }

 private:
    void binary(int lowest);
    void prefix();
    void exponent();
    void primary();
    void constant(Value value);
    void argument(bool mayBeReference);
};

}  // namespace zg::script
