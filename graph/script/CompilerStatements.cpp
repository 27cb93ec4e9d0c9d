// Statements, each by its first word.

#include "graph/script/Compiler.h"
#include "graph/script/Nesting.h"

namespace zg {

bool Compiler::atBlockEnd() const {
    switch (lexer_.token()) {
        case Token::End:
        case Token::EndWord:
        case Token::Else:
        case Token::ElseIf:
        case Token::Case:
        case Token::Next:
        case Token::Loop:
        case Token::Wend:
            return true;
        case Token::EndOfLine:
            return inLine_;
        default:
            return false;
    }
}

void Compiler::skipSeparators() {
    while (lexer_.token() == Token::Colon || (!inLine_ && lexer_.token() == Token::EndOfLine)) lexer_.next();
}

void Compiler::statements() {
    skipSeparators();
    while (!atBlockEnd()) {
        here();
        statement();
        if (!atBlockEnd()) endOfStatement();
        skipSeparators();
    }
}

void Compiler::endOfStatement() {
    if (lexer_.token() != Token::Colon && lexer_.token() != Token::EndOfLine)
        lexer_.fail(ScriptErrorNumber::ExpectedEndOfStatement);
}

void Compiler::statement() {
    const NestingGuard deeper(nesting_, lexer_);
    switch (lexer_.token()) {
        case Token::Name:
            return nameStatement();
        case Token::Let:
            lexer_.next();
            if (lexer_.token() != Token::Name) lexer_.fail(ScriptErrorNumber::ExpectedIdentifier);
            {
                const ScriptPosition place = lexer_.position();
                const std::string name = takeName();
                if (lexer_.token() != Token::Equal) lexer_.fail(ScriptErrorNumber::ExpectedEquals);
                return assignment(name, place);
            }
        case Token::Call:
            return callStatement();
        case Token::Dim:
            return dimStatement();
        case Token::Const:
            return constStatement();
        case Token::If:
            return ifStatement();
        case Token::Select:
            return selectStatement();
        case Token::For:
            return forStatement();
        case Token::Do:
            return doStatement();
        case Token::While:
            return whileStatement();
        case Token::Exit:
            return exitStatement();
        case Token::Option:
            return optionStatement();
        case Token::Sub:
        case Token::Function:
            return procedureStatement(lexer_.token() == Token::Function);
        default:
            lexer_.fail(ScriptErrorNumber::ExpectedStatement);
    }
}

void Compiler::assignment(const std::string& name, ScriptPosition place) {
    lexer_.next();
    expression();
    store(name, place);
}

void Compiler::nameStatement() {
    const ScriptPosition place = lexer_.position();
    const std::string name = takeName();
    if (lexer_.token() == Token::Equal) return assignment(name, place);
    if (lexer_.token() == Token::Dot) {
        if (name != settings_.mathObject || settings_.mathObject.empty())
            lexer_.fail(ScriptErrorNumber::ObjectRequired, place);
        return memberStatement();
    }
    callExpression(name, place, true, lexer_.token() == Token::Open);
}

void Compiler::memberStatement() {
    memberExpression();
    emit(Op::Pop);
}

void Compiler::callStatement() {
    lexer_.next();
    const ScriptPosition place = lexer_.position();
    const std::string name = takeName();
    callExpression(name, place, true, lexer_.token() == Token::Open);
}

void Compiler::dimStatement() {
    do {
        lexer_.next();
        const ScriptPosition place = lexer_.position();
        declare(takeName(), place);
    } while (lexer_.token() == Token::Comma);
}

void Compiler::constStatement() {
    do {
        lexer_.next();
        const ScriptPosition place = lexer_.position();
        const std::string name = takeName();
        // The same statements are added again at each redraw: a constant of an earlier text is defined anew.
        const Symbol* known = scope_ == nullptr ? symbols_.find(name) : nullptr;
        const bool again = known != nullptr && known->isConstant && !constants_.contains(name);
        if (!again && isUserName(name)) lexer_.fail(ScriptErrorNumber::NameRedefined, place);
        expect(Token::Equal, ScriptErrorNumber::ExpectedEquals);
        here();
        const std::size_t from = chunk_->code.size();
        expression();
        const Op last = chunk_->code.back().op;
        const bool isLiteral = (chunk_->code.size() == from + 1 && last == Op::Constant) ||
                               (chunk_->code.size() == from + 2 && (last == Op::Negate || last == Op::Plus) &&
                                chunk_->code[from].op == Op::Constant);
        if (!isLiteral) lexer_.fail(ScriptErrorNumber::ExpectedLiteralConstant, place);
        if (!again) declare(name, place);
        if (const std::int32_t* slot = local(name)) {
            scope_->constants.insert(name);
            emitAt(place, Op::StoreLocal, *slot);
        } else {
            const std::int32_t symbol = symbols_.intern(name);
            symbols_[symbol].isConstant = true;
            constants_.insert(name);
            emitAt(place, Op::DefineConstant, symbol);
        }
    } while (lexer_.token() == Token::Comma);
}

void Compiler::ifStatement() {
    lexer_.next();
    expression();
    expect(Token::Then, ScriptErrorNumber::ExpectedThen);
    if (lexer_.token() == Token::EndOfLine && !inLine_)
        ifBlock();
    else
        ifLine();
}

/// "If c Then a Else b" on one line; nested ones end with the line together.
void Compiler::ifLine() {
    const bool outer = inLine_;
    inLine_ = true;
    const std::size_t skip = jump(Op::JumpIfFalse);
    statements();
    if (accept(Token::Else)) {
        const std::size_t done = jump(Op::Jump);
        land(skip);
        statements();
        land(done);
    } else {
        land(skip);
    }
    inLine_ = outer;
    if (lexer_.token() == Token::EndWord) {
        lexer_.next();
        expect(Token::If, ScriptErrorNumber::ExpectedIf);
    }
}

void Compiler::ifBlock() {
    std::vector<std::size_t> done;
    std::size_t skip = jump(Op::JumpIfFalse);
    statements();
    while (accept(Token::ElseIf)) {
        done.push_back(jump(Op::Jump));
        land(skip);
        expression();
        expect(Token::Then, ScriptErrorNumber::ExpectedThen);
        skip = jump(Op::JumpIfFalse);
        statements();
    }
    if (accept(Token::Else)) {
        done.push_back(jump(Op::Jump));
        land(skip);
        statements();
    } else {
        land(skip);
    }
    landAll(done);
    expect(Token::EndWord, ScriptErrorNumber::ExpectedEnd);
    expect(Token::If, ScriptErrorNumber::ExpectedIf);
}

void Compiler::selectStatement() {
    lexer_.next();
    expect(Token::Case, ScriptErrorNumber::ExpectedCase);
    expression();
    const std::int32_t chosen = temporary();
    emit(Op::StoreLocal, chosen);
    skipSeparators();
    std::vector<std::size_t> done;
    while (lexer_.token() == Token::Case) {
        lexer_.next();
        if (accept(Token::Else)) {
            statements();
            break;
        }
        bool first = true;
        do {
            const ScriptPosition place = lexer_.position();
            emit(Op::LoadLocal, chosen);
            expression();
            emitAt(place, Op::Binary, static_cast<std::int32_t>(Operator::Equal));
            if (!first) emitAt(place, Op::Binary, static_cast<std::int32_t>(Operator::Or));
            first = false;
        } while (accept(Token::Comma));
        const std::size_t skip = jump(Op::JumpIfFalse);
        statements();
        done.push_back(jump(Op::Jump));
        land(skip);
    }
    landAll(done);
    expect(Token::EndWord, ScriptErrorNumber::ExpectedEnd);
    expect(Token::Select, ScriptErrorNumber::ExpectedSelect);
}

void Compiler::forStatement() {
    lexer_.next();
    const ScriptPosition place = lexer_.position();
    const std::string name = takeName();
    expect(Token::Equal, ScriptErrorNumber::ExpectedEquals);
    expression();
    store(name, place);
    expect(Token::To, ScriptErrorNumber::ExpectedTo);
    expression();
    const std::int32_t limit = temporary();
    emit(Op::StoreLocal, limit);
    const std::int32_t step = temporary();
    if (lexer_.token() == Token::Name && lexer_.name() == "step") {
        lexer_.next();
        expression();
    } else {
        literal(Value::ofWhole(1));
    }
    emit(Op::StoreLocal, step);
    const std::size_t again = here();
    loadName(name, place);
    emitAt(place, Op::LoadLocal, limit);
    emitAt(place, Op::LoadLocal, step);
    emitAt(place, Op::ForTest);
    loops_.push_back({Token::For, {jump(Op::JumpIfFalse)}});
    statements();
    expect(Token::Next, ScriptErrorNumber::ExpectedNext);
    loadName(name, place);
    emitAt(place, Op::LoadLocal, step);
    emitAt(place, Op::Binary, static_cast<std::int32_t>(Operator::Add));
    store(name, place);
    emitAt(place, Op::Jump, static_cast<std::int32_t>(again));
    landAll(loops_.back().exits);
    loops_.pop_back();
}

/// The condition of a loop; it is left when the condition has the given outcome.
void Compiler::conditionalJump(bool leaveWhenTrue, std::vector<std::size_t>& exits) {
    lexer_.next();
    expression();
    exits.push_back(jump(leaveWhenTrue ? Op::JumpIfTrue : Op::JumpIfFalse));
}

void Compiler::doStatement() {
    lexer_.next();
    const std::size_t again = here();
    loops_.push_back({Token::Do, {}});
    std::vector<std::size_t> exits;
    if (lexer_.token() == Token::While || lexer_.token() == Token::Until)
        conditionalJump(lexer_.token() == Token::Until, exits);
    statements();
    expect(Token::Loop, ScriptErrorNumber::ExpectedLoop);
    if (lexer_.token() == Token::While || lexer_.token() == Token::Until)
        conditionalJump(lexer_.token() == Token::Until, exits);
    emit(Op::Jump, static_cast<std::int32_t>(again));
    landAll(exits);
    landAll(loops_.back().exits);
    loops_.pop_back();
}

void Compiler::whileStatement() {
    const std::size_t again = here();
    std::vector<std::size_t> exits;
    conditionalJump(false, exits);
    statements();
    expect(Token::Wend, ScriptErrorNumber::ExpectedWend);
    emit(Op::Jump, static_cast<std::int32_t>(again));
    landAll(exits);
}

void Compiler::exitStatement() {
    const ScriptPosition place = lexer_.position();
    lexer_.next();
    const Token what = lexer_.token();
    if (what == Token::Sub || what == Token::Function) {
        const bool isFunction = what == Token::Function;
        if (scope_ == nullptr || scope_->procedure->isFunction != isFunction)
            lexer_.fail(ScriptErrorNumber::InvalidExit, place);
        emitAt(place, Op::Return);
    } else if (what == Token::For || what == Token::Do) {
        for (auto loop = loops_.rbegin();; ++loop) {
            if (loop == loops_.rend()) lexer_.fail(ScriptErrorNumber::InvalidExit, place);
            if (loop->kind != what) continue;
            loop->exits.push_back(jump(Op::Jump));
            break;
        }
    } else {
        lexer_.fail(ScriptErrorNumber::InvalidExit, place);
    }
    lexer_.next();
}

void Compiler::optionStatement() {
    lexer_.next();
    if (lexer_.token() != Token::Name || lexer_.name() != "explicit")
        lexer_.fail(ScriptErrorNumber::SyntaxError);
    settings_.optionExplicit = true;
    lexer_.next();
}

void Compiler::parameters(Procedure& procedure) {
    if (!accept(Token::Open)) return;
    if (accept(Token::Close)) return;
    do {
        const bool byValue = accept(Token::ByVal);
        if (!byValue) accept(Token::ByRef);
        const ScriptPosition place = lexer_.position();
        declare(takeName(), place);
        procedure.byReference.push_back(!byValue);
    } while (accept(Token::Comma));
    expect(Token::Close, ScriptErrorNumber::ExpectedCloseParenthesis);
}

void Compiler::procedureStatement(bool isFunction) {
    if (scope_ != nullptr || !loops_.empty() || inLine_ || nesting_ > 1)
        lexer_.fail(ScriptErrorNumber::SyntaxError);
    lexer_.next();
    const ScriptPosition place = lexer_.position();
    auto procedure = std::make_shared<Procedure>();
    procedure->name = takeName();
    procedure->isFunction = isFunction;
    Symbol& symbol = symbols_[symbols_.intern(procedure->name)];
    if (symbol.isConstant) lexer_.fail(ScriptErrorNumber::NameRedefined, place);
    symbol.declared = true;

    Scope scope;
    scope.procedure = procedure.get();
    Chunk* const outerChunk = chunk_;
    const std::size_t outerBarrier = barrier_;
    chunk_ = &procedure->chunk;
    scope_ = &scope;
    barrier_ = 0;
    if (isFunction) declare(procedure->name, place);
    parameters(*procedure);
    statements();
    expect(Token::EndWord, ScriptErrorNumber::ExpectedEnd);
    expect(isFunction ? Token::Function : Token::Sub,
           isFunction ? ScriptErrorNumber::ExpectedFunction : ScriptErrorNumber::ExpectedSub);
    emit(Op::Return);
    chunk_ = outerChunk;
    scope_ = nullptr;
    barrier_ = outerBarrier;
    procedures_.push_back(std::move(procedure));
}

}  // namespace zg
