#include "graph/script/StatementParser.h"

#include <algorithm>
#include <utility>

namespace zg::script {

Syntax StatementParser::singleExpression() {
    while (at(TokenKind::LineEnd)) advance();
    if (!at(TokenKind::End)) syntax_.expression = expression();
    while (at(TokenKind::LineEnd)) advance();
    if (!at(TokenKind::End)) fail(ScriptErrorNumber::ExpectedEndOfStatement);
    return std::move(syntax_);
}

Syntax StatementParser::code() {
    skipStatementEnds();
    if (at(TokenKind::Option)) optionStatement();
    topLevel();
    return std::move(syntax_);
}

void StatementParser::topLevel() {
    statements(syntax_.body);
    if (at(TokenKind::Loop)) fail(ScriptErrorNumber::LoopWithoutDo);
    if (!at(TokenKind::End)) fail(ScriptErrorNumber::ExpectedStatement);
}

void StatementParser::skipStatementEnds() {
    while (at(TokenKind::LineEnd) || at(TokenKind::Colon)) advance();
}

void StatementParser::expectStatementEnd() {
    if (!atStatementEnd() && !atBlockEnd()) fail(ScriptErrorNumber::ExpectedEndOfStatement);
}

/// The words that end a block; the statement of the block checks which of them fits.
bool StatementParser::atBlockEnd() const {
    switch (token_.kind) {
        case TokenKind::End:
        case TokenKind::EndWord:
        case TokenKind::Else:
        case TokenKind::ElseIf:
        case TokenKind::Case:
        case TokenKind::Next:
        case TokenKind::Loop:
        case TokenKind::Wend:
            return true;
        default:
            return false;
    }
}

/// Statements up to a word that ends the block.
void StatementParser::statements(Block& block) {
    for (;;) {
        skipStatementEnds();
        if (atBlockEnd()) return;
        lineIfEnded_ = false;
        statement(block);
        // A one-line If may be the last statement of a block that ends on the same line.
        if (!atStatementEnd() && !(lineIfEnded_ && atBlockEnd()))
            fail(ScriptErrorNumber::ExpectedEndOfStatement);
    }
}

/// Statements up to the end of the line, as after Then.
void StatementParser::lineStatements(Block& block) {
    for (;;) {
        while (accept(TokenKind::Colon)) {
        }
        if (at(TokenKind::LineEnd) || atBlockEnd()) return;
        statement(block);
        expectStatementEnd();
    }
}

Statement& StatementParser::addStatement(Block& block, StatementKind kind) {
    Statement& made = block.emplace_back();
    made.kind = kind;
    made.offset = offset();
    return made;
}

void StatementParser::statement(Block& block) {
    const Nesting nesting(*this);
    switch (token_.kind) {
        case TokenKind::Dim:
            return declareVariables();
        case TokenKind::Const:
            return declareConstants();
        case TokenKind::Public:
        case TokenKind::Private:
            if (insideProcedure_) fail(ScriptErrorNumber::SyntaxError);
            advance();
            if (at(TokenKind::Sub) || at(TokenKind::Function)) return procedure();
            if (at(TokenKind::Const)) return declareConstants();
            return declareVariables();
        case TokenKind::Sub:
        case TokenKind::Function:
            return procedure();
        case TokenKind::If:
            return ifStatement(block);
        case TokenKind::Select:
            return selectStatement(block);
        case TokenKind::For:
            return forStatement(block);
        case TokenKind::Do:
            return doStatement(block);
        case TokenKind::While:
            return whileStatement(block);
        case TokenKind::Exit:
            return exitStatement(block);
        case TokenKind::Call:
            return callStatement(block);
        case TokenKind::Let:
            advance();
            return assignment(block, StatementKind::Assign);
        case TokenKind::Set:
            advance();
            return assignment(block, StatementKind::AssignSet);
        case TokenKind::Identifier:
            return nameStatement(block);
        case TokenKind::Reserved:
        case TokenKind::Option:
            fail(ScriptErrorNumber::SyntaxError);
        default:
            fail(ScriptErrorNumber::ExpectedStatement);
    }
}

/// Call name(arguments).
void StatementParser::callStatement(Block& block) {
    advance();
    Statement& made = addStatement(block, StatementKind::Call);
    made.place.first = static_cast<std::uint32_t>(syntax_.nodes.size());
    made.offset = offset();
    const std::uint32_t name = expectName();
    namePostfix(name, made.offset);
    Node& root = syntax_.nodes.back();
    if (root.kind == NodeKind::Name) root.kind = NodeKind::Index;
    made.place.end = static_cast<std::uint32_t>(syntax_.nodes.size());
}

/// The part of an assignment from its name on.
void StatementParser::assignment(Block& block, StatementKind kind) {
    Statement& made = addStatement(block, kind);
    made.name = expectName();
    made.place.first = static_cast<std::uint32_t>(syntax_.nodes.size());
    if (at(TokenKind::OpenParenthesis)) made.arguments = argumentsInParentheses(false);
    made.place.end = static_cast<std::uint32_t>(syntax_.nodes.size());
    expect(TokenKind::Equal, ScriptErrorNumber::ExpectedEquals);
    made.value = expression();
}

/// A statement that begins with a name: an assignment, or a call with or without parentheses. Which one shows
/// only after the parentheses, so their content may be read twice.
void StatementParser::nameStatement(Block& block) {
    const Token nameToken = token_;
    const std::uint32_t nameOffset = offset();
    const std::uint32_t name = expectName();
    if (!at(TokenKind::OpenParenthesis) && !at(TokenKind::Dot) && !at(TokenKind::Equal))
        return callWithoutParentheses(block, name, nameOffset);

    const auto firstNode = static_cast<std::uint32_t>(syntax_.nodes.size());
    const Token behindName = token_;
    namePostfix(name, nameOffset);
    const Node root = syntax_.nodes.back();
    if (at(TokenKind::Equal) && root.kind != NodeKind::Member) {
        syntax_.nodes.resize(firstNode);
        lexer_.rewindTo(nameToken);
        token_ = nameToken;
        return assignment(block, StatementKind::Assign);
    }
    Statement& made = addStatement(block, StatementKind::Call);
    made.offset = nameOffset;
    made.place = {firstNode, static_cast<std::uint32_t>(syntax_.nodes.size())};
    if (root.kind == NodeKind::Member) {
        if (at(TokenKind::Equal)) {
            made.kind = StatementKind::AssignMember;
            made.offset = root.offset;
            advance();
            made.value = expression();
            return;
        }
        if (startsExpression() && root.arguments == 0) {
            const std::uint8_t count = argumentList(false);
            // The arguments come before the member's node.
            std::rotate(syntax_.nodes.begin() + made.place.end - 1, syntax_.nodes.begin() + made.place.end,
                        syntax_.nodes.end());
            syntax_.nodes.back().arguments = count;
            made.place.end = static_cast<std::uint32_t>(syntax_.nodes.size());
        }
        return;
    }
    if (atStatementEnd() || atBlockEnd()) {
        if (root.arguments > 1) failAt(ScriptErrorNumber::ParenthesesWithSub, behindName.offset);
        // Parentheses around the only argument protect it from changes.
        if (root.arguments == 1) syntax_.nodes[syntax_.nodes.size() - 2].asReference = false;
        return;
    }
    syntax_.nodes.resize(firstNode);
    block.pop_back();
    lexer_.rewindTo(behindName);
    token_ = behindName;
    callWithoutParentheses(block, name, nameOffset);
}

void StatementParser::callWithoutParentheses(Block& block, std::uint32_t name, std::uint32_t nameOffset) {
    Statement& made = addStatement(block, StatementKind::Call);
    made.offset = nameOffset;
    made.place.first = static_cast<std::uint32_t>(syntax_.nodes.size());
    const bool hasArguments = !atStatementEnd() && !atBlockEnd();
    if (hasArguments && !startsExpression()) fail(ScriptErrorNumber::ExpectedEndOfStatement);
    const std::uint8_t count = hasArguments ? argumentList(true) : std::uint8_t{0};
    add({NodeKind::Index, Operator::Add, count, false, name, nameOffset});
    made.place.end = static_cast<std::uint32_t>(syntax_.nodes.size());
}

Syntax parseCode(std::string_view text) { return StatementParser(text).code(); }

Syntax parseExpression(std::string_view text) { return StatementParser(text).singleExpression(); }

}  // namespace zg::script
