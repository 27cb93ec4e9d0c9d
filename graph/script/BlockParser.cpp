#include "graph/script/StatementParser.h"

namespace zg::script {

namespace {

/// Holds a counter raised for its lifetime.
class Raised {
 public:
    explicit Raised(int& counter) : counter_(++counter) {}
    ~Raised() { --counter_; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

 private:
    int& counter_;
};

}  // namespace

void StatementParser::ifStatement(Block& block) {
    const Raised inBlock(blocks_);
    Statement& made = addStatement(block, StatementKind::If);
    advance();
    Branch& first = made.branches.emplace_back();
    first.conditions.push_back(expression());
    expect(TokenKind::Then, ScriptErrorNumber::ExpectedThen);
    if (at(TokenKind::LineEnd) || at(TokenKind::Colon) || at(TokenKind::End))
        ifBlock(made);
    else
        ifLine(made);
}

void StatementParser::ifBlock(Statement& made) {
    statements(made.branches.back().body);
    while (accept(TokenKind::ElseIf)) {
        Branch& branch = made.branches.emplace_back();
        branch.conditions.push_back(expression());
        expect(TokenKind::Then, ScriptErrorNumber::ExpectedThen);
        statements(branch.body);
    }
    if (accept(TokenKind::Else)) statements(made.branches.emplace_back().body);
    expect(TokenKind::EndWord, ScriptErrorNumber::ExpectedEnd);
    expect(TokenKind::If, ScriptErrorNumber::ExpectedIf);
}

void StatementParser::ifLine(Statement& made) {
    lineStatements(made.branches.back().body);
    while (accept(TokenKind::ElseIf)) {
        Branch& branch = made.branches.emplace_back();
        branch.conditions.push_back(expression());
        expect(TokenKind::Then, ScriptErrorNumber::ExpectedThen);
        lineStatements(branch.body);
    }
    if (accept(TokenKind::Else)) lineStatements(made.branches.emplace_back().body);
    lineIfEnded_ = true;
    // "End If" may end the line; any other End belongs to an enclosing block.
    if (!at(TokenKind::EndWord)) return;
    const Token end = token_;
    advance();
    if (accept(TokenKind::If)) return;
    lexer_.rewindTo(end);
    token_ = end;
}

void StatementParser::selectStatement(Block& block) {
    const Raised inBlock(blocks_);
    Statement& made = addStatement(block, StatementKind::Select);
    advance();
    expect(TokenKind::Case, ScriptErrorNumber::ExpectedCase);
    made.value = expression();
    if (!atStatementEnd()) fail(ScriptErrorNumber::ExpectedEndOfStatement);
    skipStatementEnds();
    bool elseSeen = false;
    while (at(TokenKind::Case) && !elseSeen) {
        advance();
        Branch& branch = made.branches.emplace_back();
        elseSeen = accept(TokenKind::Else);
        if (!elseSeen) {
            do branch.conditions.push_back(expression());
            while (accept(TokenKind::Comma));
        }
        statements(branch.body);
    }
    if (made.branches.empty() && !at(TokenKind::EndWord) && !at(TokenKind::End))
        fail(ScriptErrorNumber::ExpectedCase);
    expect(TokenKind::EndWord, ScriptErrorNumber::ExpectedEnd);
    expect(TokenKind::Select, ScriptErrorNumber::ExpectedSelect);
}

void StatementParser::forStatement(Block& block) {
    const Raised inBlock(blocks_);
    const Raised inLoop(forLoops_);
    Statement& made = addStatement(block, StatementKind::For);
    advance();
    made.offset = offset();
    made.name = expectName();
    if (at(TokenKind::OpenParenthesis) || at(TokenKind::Dot))
        failAt(ScriptErrorNumber::InvalidForVariable, made.offset);
    expect(TokenKind::Equal, ScriptErrorNumber::ExpectedEquals);
    made.place = expression();
    expect(TokenKind::To, ScriptErrorNumber::ExpectedTo);
    made.value = expression();
    if (acceptWord("step")) made.step = expression();
    if (!atStatementEnd()) fail(ScriptErrorNumber::ExpectedEndOfStatement);
    statements(made.body);
    expect(TokenKind::Next, ScriptErrorNumber::ExpectedNext);
}

LoopTest StatementParser::loopTest(LoopTest whileTest, LoopTest untilTest, Expression& condition) {
    if (!at(TokenKind::While) && !at(TokenKind::Until)) return LoopTest::None;
    const bool isWhile = at(TokenKind::While);
    advance();
    condition = expression();
    return isWhile ? whileTest : untilTest;
}

void StatementParser::doStatement(Block& block) {
    const Raised inBlock(blocks_);
    const Raised inLoop(doLoops_);
    Statement& made = addStatement(block, StatementKind::Do);
    advance();
    made.test = loopTest(LoopTest::WhileBefore, LoopTest::UntilBefore, made.value);
    if (!atStatementEnd())
        fail(made.test == LoopTest::None ? ScriptErrorNumber::ExpectedWhileOrUntil
                                         : ScriptErrorNumber::ExpectedEndOfStatement);
    statements(made.body);
    expect(TokenKind::Loop, ScriptErrorNumber::ExpectedLoop);
    if (made.test == LoopTest::None)
        made.test = loopTest(LoopTest::WhileAfter, LoopTest::UntilAfter, made.value);
}

void StatementParser::whileStatement(Block& block) {
    const Raised inBlock(blocks_);
    Statement& made = addStatement(block, StatementKind::While);
    advance();
    made.value = expression();
    made.test = LoopTest::WhileBefore;
    if (!atStatementEnd()) fail(ScriptErrorNumber::ExpectedEndOfStatement);
    statements(made.body);
    expect(TokenKind::Wend, ScriptErrorNumber::ExpectedWend);
}

void StatementParser::exitStatement(Block& block) {
    Statement& made = addStatement(block, StatementKind::Exit);
    const std::uint32_t exitOffset = offset();
    advance();
    bool isRight = false;
    switch (token_.kind) {
        case TokenKind::For:
            made.exit = ExitKind::For;
            isRight = forLoops_ > 0;
            break;
        case TokenKind::Do:
            made.exit = ExitKind::Do;
            isRight = doLoops_ > 0;
            break;
        case TokenKind::Sub:
            made.exit = ExitKind::Sub;
            isRight = insideProcedure_ && !insideFunction_;
            break;
        case TokenKind::Function:
            made.exit = ExitKind::Function;
            isRight = insideProcedure_ && insideFunction_;
            break;
        default:
            break;
    }
    if (!isRight) failAt(ScriptErrorNumber::InvalidExit, exitOffset);
    advance();
}

}  // namespace zg::script
