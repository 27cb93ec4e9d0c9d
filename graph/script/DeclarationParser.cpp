#include "graph/script/StatementParser.h"

#include <utility>

#include "graph/script/Limits.h"

namespace zg::script {

void StatementParser::optionStatement() {
    advance();
    if (!acceptWord("explicit")) fail(ScriptErrorNumber::SyntaxError);
    if (!atStatementEnd()) fail(ScriptErrorNumber::ExpectedEndOfStatement);
    syntax_.optionExplicit = true;
}

/// Parses Dim, Public or Private, which is the current token unless already taken, and the names.
void StatementParser::declareVariables() {
    accept(TokenKind::Dim);
    do {
        Declaration made;
        made.offset = offset();
        made.name = expectName();
        if (at(TokenKind::OpenParenthesis)) {
            made.isArray = true;
            made.upperBounds = arrayBounds();
        }
        declarations_->push_back(std::move(made));
    } while (accept(TokenKind::Comma));
}

std::vector<std::uint32_t> StatementParser::arrayBounds() {
    std::vector<std::uint32_t> bounds;
    std::size_t elements = 1;
    do {
        advance();
        const bool isWhole = at(TokenKind::Number) && !token_.number.is(ValueType::Double);
        if (!isWhole || token_.number.number() < 0) fail(ScriptErrorNumber::ExpectedIntegerConstant);
        const auto bound = static_cast<std::uint32_t>(token_.number.number());
        elements *= std::size_t{bound} + 1;
        if (elements > maxArrayElements || bounds.size() == maxArguments)
            fail(ScriptErrorNumber::OutOfMemory);
        bounds.push_back(bound);
        advance();
    } while (at(TokenKind::Comma));
    expect(TokenKind::CloseParenthesis, ScriptErrorNumber::ExpectedCloseParenthesis);
    return bounds;
}

void StatementParser::declareConstants() {
    do {
        advance();
        Declaration made;
        made.isConstant = true;
        made.offset = offset();
        made.name = expectName();
        expect(TokenKind::Equal, ScriptErrorNumber::ExpectedEquals);
        made.constant = constantIndex(literal());
        declarations_->push_back(std::move(made));
    } while (at(TokenKind::Comma));
}

/// The value of a constant: a number with an optional sign, a text or a word.
Value StatementParser::literal() {
    const std::uint32_t signOffset = offset();
    const bool negative = accept(TokenKind::Minus);
    if (!negative && at(TokenKind::Plus)) advance();
    Value value;
    switch (token_.kind) {
        case TokenKind::Number:
            value = negative ? apply(Operator::Negate, token_.number) : token_.number;
            break;
        case TokenKind::Text:
            if (token_.text.size() > maxTextLength) fail(ScriptErrorNumber::OutOfMemory);
            value = Value::text(token_.text);
            break;
        case TokenKind::True:
        case TokenKind::False:
            value = Value::boolean(at(TokenKind::True));
            break;
        case TokenKind::Empty:
            break;
        case TokenKind::Null:
            value = Value::null();
            break;
        default:
            fail(ScriptErrorNumber::ExpectedLiteral);
    }
    if (negative && !at(TokenKind::Number)) failAt(ScriptErrorNumber::ExpectedLiteral, signOffset);
    advance();
    return value;
}

void StatementParser::procedure() {
    if (insideProcedure_ || blocks_ > 0) fail(ScriptErrorNumber::SyntaxError);
    ProcedureSyntax made;
    made.isFunction = at(TokenKind::Function);
    advance();
    made.offset = offset();
    made.name = expectName();
    made.parameters = parameters();
    insideProcedure_ = true;
    insideFunction_ = made.isFunction;
    declarations_ = &made.declarations;
    statements(made.body);
    declarations_ = &syntax_.declarations;
    insideProcedure_ = false;
    expect(TokenKind::EndWord, ScriptErrorNumber::ExpectedEnd);
    if (made.isFunction)
        expect(TokenKind::Function, ScriptErrorNumber::ExpectedFunction);
    else
        expect(TokenKind::Sub, ScriptErrorNumber::ExpectedSub);
    syntax_.procedures.push_back(std::move(made));
}

std::vector<Parameter> StatementParser::parameters() {
    std::vector<Parameter> made;
    if (!accept(TokenKind::OpenParenthesis) || accept(TokenKind::CloseParenthesis)) return made;
    do {
        if (made.size() == maxArguments) fail(ScriptErrorNumber::OutOfMemory);
        Parameter parameter;
        parameter.byReference = !at(TokenKind::ByVal);
        if (!accept(TokenKind::ByVal)) accept(TokenKind::ByRef);
        parameter.offset = offset();
        parameter.name = expectName();
        made.push_back(parameter);
    } while (accept(TokenKind::Comma));
    expect(TokenKind::CloseParenthesis, ScriptErrorNumber::ExpectedCloseParenthesis);
    return made;
}

}  // namespace zg::script
