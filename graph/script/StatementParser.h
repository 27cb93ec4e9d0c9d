#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "graph/script/Parser.h"

namespace zg::script {

/// Statements, in three sources: this class for simple ones, BlockParser for those that contain others,
/// DeclarationParser for declarations.
class StatementParser : private ExpressionParser {
 public:
    explicit StatementParser(std::string_view text) : ExpressionParser(text) {}

    Syntax code();
    Syntax singleExpression();

 private:
    bool atStatementEnd() const {
        return at(TokenKind::LineEnd) || at(TokenKind::Colon) || at(TokenKind::End);
    }
    bool atBlockEnd() const;
    void skipStatementEnds();
    void expectStatementEnd();
    void topLevel();
    void statements(Block& block);
    void lineStatements(Block& block);
    void statement(Block& block);

    void declareVariables();
    std::vector<std::uint32_t> arrayBounds();
    void declareConstants();
    Value literal();
    void optionStatement();
    void procedure();
    std::vector<Parameter> parameters();

    void ifStatement(Block& block);
    void ifBlock(Statement& made);
    void ifLine(Statement& made);
    void selectStatement(Block& block);
    void forStatement(Block& block);
    void doStatement(Block& block);
    LoopTest loopTest(LoopTest whileTest, LoopTest untilTest, Expression& condition);
    void whileStatement(Block& block);
    void exitStatement(Block& block);
    void callStatement(Block& block);
    void assignment(Block& block, StatementKind kind);
    void nameStatement(Block& block);
    void callWithoutParentheses(Block& block, std::uint32_t name, std::uint32_t nameOffset);
    Statement& addStatement(Block& block, StatementKind kind);

    std::vector<Declaration>* declarations_ = &syntax_.declarations;
    bool insideProcedure_ = false;
    bool insideFunction_ = false;
    bool lineIfEnded_ = false;
    int blocks_ = 0;
    int forLoops_ = 0;
    int doLoops_ = 0;
};

}  // namespace zg::script
