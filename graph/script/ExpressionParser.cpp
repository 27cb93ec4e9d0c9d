#include <utility>

#include "graph/script/Limits.h"
#include "graph/script/Parser.h"

namespace zg::script {

namespace {

struct BinaryOperator {
    TokenKind token;
    Operator operation;
    int precedence;  ///< higher binds more tightly
};

constexpr int impPrecedence = 1;
constexpr int notPrecedence = 6;
constexpr int comparisonPrecedence = 7;
constexpr int negatePrecedence = 13;
constexpr int powerPrecedence = 14;

constexpr BinaryOperator binaryOperators[] = {
    {TokenKind::Imp, Operator::Imp, impPrecedence},
    {TokenKind::Eqv, Operator::Eqv, 2},
    {TokenKind::Xor, Operator::Xor, 3},
    {TokenKind::Or, Operator::Or, 4},
    {TokenKind::And, Operator::And, 5},
    {TokenKind::Equal, Operator::Equal, comparisonPrecedence},
    {TokenKind::NotEqual, Operator::NotEqual, comparisonPrecedence},
    {TokenKind::Less, Operator::Less, comparisonPrecedence},
    {TokenKind::Greater, Operator::Greater, comparisonPrecedence},
    {TokenKind::LessEqual, Operator::LessEqual, comparisonPrecedence},
    {TokenKind::GreaterEqual, Operator::GreaterEqual, comparisonPrecedence},
    {TokenKind::Ampersand, Operator::Concatenate, 8},
    {TokenKind::Plus, Operator::Add, 9},
    {TokenKind::Minus, Operator::Subtract, 9},
    {TokenKind::Mod, Operator::Modulo, 10},
    {TokenKind::Backslash, Operator::IntegerDivide, 11},
    {TokenKind::Star, Operator::Multiply, 12},
    {TokenKind::Slash, Operator::Divide, 12},
    {TokenKind::Caret, Operator::Power, powerPrecedence},
};

const BinaryOperator* binaryOperator(TokenKind token) {
    for (const BinaryOperator& entry : binaryOperators)
        if (entry.token == token) return &entry;
    return nullptr;
}

}  // namespace

ParserBase::ParserBase(std::string_view text) : lexer_(text) {
    if (text.size() > maxProgramLength) failAt(ScriptErrorNumber::OutOfMemory, maxProgramLength);
    advance();
}

bool ParserBase::accept(TokenKind kind) {
    if (!at(kind)) return false;
    advance();
    return true;
}

bool ParserBase::acceptWord(std::string_view lowerCase) {
    if (!at(TokenKind::Identifier) || token_.text != lowerCase) return false;
    advance();
    return true;
}

void ParserBase::expect(TokenKind kind, ScriptErrorNumber otherwise) {
    if (!at(kind)) fail(otherwise);
    advance();
}

std::uint32_t ParserBase::nameIndex(const std::string& name) {
    const auto [entry, isNew] = nameIndexes_.emplace(name, static_cast<std::uint32_t>(syntax_.names.size()));
    if (isNew) syntax_.names.push_back(name);
    return entry->second;
}

std::uint32_t ParserBase::constantIndex(Value value) {
    syntax_.constants.push_back(std::move(value));
    return static_cast<std::uint32_t>(syntax_.constants.size() - 1);
}

std::uint32_t ParserBase::expectName() {
    if (!at(TokenKind::Identifier)) fail(ScriptErrorNumber::ExpectedIdentifier);
    const std::uint32_t index = nameIndex(token_.text);
    advance();
    return index;
}

ParserBase::Nesting::Nesting(ParserBase& parser) : parser_(parser) {
    if (parser_.nesting_ == maxNesting) parser_.fail(ScriptErrorNumber::OutOfStackSpace);
    ++parser_.nesting_;
}

Expression ExpressionParser::expression() {
    Expression range;
    range.first = static_cast<std::uint32_t>(syntax_.nodes.size());
    binary(impPrecedence);
    range.end = static_cast<std::uint32_t>(syntax_.nodes.size());
    return range;
}

/// An operand and every operator after it that binds at least this tightly; operators of one precedence group
/// from the left.
void ExpressionParser::binary(int lowest) {
    const Nesting nesting(*this);
    prefix();
    for (;;) {
        const BinaryOperator* const found = binaryOperator(token_.kind);
        if (!found || found->precedence < lowest) return;
        const std::uint32_t operatorOffset = offset();
        advance();
        if (found->operation == Operator::Power)
            exponent();
        else
            binary(found->precedence + 1);
        add({NodeKind::Binary, found->operation, 0, false, 0, operatorOffset});
    }
}

/// A sign binds less tightly than ^ and more tightly than *; Not binds less tightly than comparisons.
void ExpressionParser::prefix() {
    const std::uint32_t signOffset = offset();
    if (accept(TokenKind::Plus)) {
        binary(negatePrecedence);
    } else if (accept(TokenKind::Minus)) {
        binary(negatePrecedence);
        add({NodeKind::Unary, Operator::Negate, 0, false, 0, signOffset});
    } else if (accept(TokenKind::Not)) {
        binary(notPrecedence);
        add({NodeKind::Unary, Operator::Not, 0, false, 0, signOffset});
    } else {
        primary();
    }
}

/// The right side of ^: its own sign, as in 2^-1, binds more tightly than a further ^.
void ExpressionParser::exponent() {
    const Nesting nesting(*this);
    const std::uint32_t signOffset = offset();
    if (accept(TokenKind::Plus)) {
        exponent();
    } else if (accept(TokenKind::Minus)) {
        exponent();
        add({NodeKind::Unary, Operator::Negate, 0, false, 0, signOffset});
    } else {
        primary();
    }
}

void ExpressionParser::constant(Value value) {
    const std::uint32_t valueOffset = offset();
    add({NodeKind::Constant, Operator::Add, 0, false, constantIndex(std::move(value)), valueOffset});
    advance();
}

bool ExpressionParser::startsExpression() const {
    switch (token_.kind) {
        case TokenKind::Number:
        case TokenKind::Text:
        case TokenKind::True:
        case TokenKind::False:
        case TokenKind::Empty:
        case TokenKind::Null:
        case TokenKind::Identifier:
        case TokenKind::OpenParenthesis:
        case TokenKind::Plus:
        case TokenKind::Minus:
        case TokenKind::Not:
            return true;
        default:
            return false;
    }
}

void ExpressionParser::primary() {
    switch (token_.kind) {
        case TokenKind::Number:
            return constant(token_.number);
        case TokenKind::Text:
            if (token_.text.size() > maxTextLength) fail(ScriptErrorNumber::OutOfMemory);
            return constant(Value::text(token_.text));
        case TokenKind::True:
            return constant(Value::boolean(true));
        case TokenKind::False:
            return constant(Value::boolean(false));
        case TokenKind::Empty:
            return constant(Value());
        case TokenKind::Null:
            return constant(Value::null());
        case TokenKind::Identifier: {
            const std::uint32_t nameOffset = offset();
            return namePostfix(expectName(), nameOffset);
        }
        case TokenKind::OpenParenthesis:
            advance();
            binary(impPrecedence);
            return expect(TokenKind::CloseParenthesis, ScriptErrorNumber::ExpectedCloseParenthesis);
        default:
            fail(ScriptErrorNumber::SyntaxError);
    }
}

void ExpressionParser::namePostfix(std::uint32_t name, std::uint32_t nameOffset) {
    if (at(TokenKind::OpenParenthesis)) {
        const std::uint8_t count = argumentsInParentheses(true);
        add({NodeKind::Index, Operator::Add, count, false, name, nameOffset});
    } else {
        add({NodeKind::Name, Operator::Add, 0, false, name, nameOffset});
    }
    while (accept(TokenKind::Dot)) {
        const std::uint32_t memberOffset = offset();
        // A word of the language may be the name of a member.
        if (token_.text.empty() || at(TokenKind::Text)) fail(ScriptErrorNumber::ExpectedIdentifier);
        const std::uint32_t member = nameIndex(token_.text);
        advance();
        std::uint8_t count = 0;
        if (at(TokenKind::OpenParenthesis)) count = argumentsInParentheses(false);
        add({NodeKind::Member, Operator::Add, count, false, member, memberOffset});
    }
}

std::uint8_t ExpressionParser::argumentsInParentheses(bool mayBeReferences) {
    advance();
    if (accept(TokenKind::CloseParenthesis)) return 0;
    const std::uint8_t count = argumentList(mayBeReferences);
    expect(TokenKind::CloseParenthesis, ScriptErrorNumber::ExpectedCloseParenthesis);
    return count;
}

std::uint8_t ExpressionParser::argumentList(bool mayBeReferences) {
    std::uint8_t count = 0;
    do {
        if (count == maxArguments) fail(ScriptErrorNumber::OutOfMemory);
        argument(mayBeReferences);
        ++count;
    } while (accept(TokenKind::Comma));
    return count;
}

/// A variable or element that is an argument by itself, without parentheses around it, may be changed by a
/// procedure.
void ExpressionParser::argument(bool mayBeReference) {
    const bool startsWithName = at(TokenKind::Identifier);
    const std::size_t firstToken = token_.offset;
    expression();
    Node& root = syntax_.nodes.back();
    const bool isPlace =
        (root.kind == NodeKind::Name || root.kind == NodeKind::Index) && root.offset == firstToken;
    root.asReference = mayBeReference && startsWithName && isPlace;
}

}  // namespace zg::script
