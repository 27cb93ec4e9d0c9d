#include "graph/script/Compiler.h"

#include "graph/script/Functions.h"

namespace zg {

Compiler::Compiler(std::string_view source, SymbolTable& symbols, ScriptSettings& settings)
    : symbols_(symbols), settings_(settings), lexer_(source) {
    if (source.size() > longestSource) lexer_.fail(ScriptErrorNumber::OutOfMemory);
}

Chunk Compiler::compileScript() {
    Chunk chunk;
    chunk_ = &chunk;
    statements();
    if (lexer_.token() != Token::End) lexer_.fail(ScriptErrorNumber::ExpectedStatement);
    emit(Op::Return);
    return chunk;
}

Chunk Compiler::compileExpression() {
    Chunk chunk;
    chunk_ = &chunk;
    while (lexer_.token() == Token::EndOfLine) lexer_.next();
    expression();
    while (lexer_.token() == Token::EndOfLine) lexer_.next();
    if (lexer_.token() != Token::End) lexer_.fail(ScriptErrorNumber::ExpectedEndOfStatement);
    emit(Op::Return);
    return chunk;
}

void Compiler::emitAt(ScriptPosition place, Op op, std::int32_t a, std::uint8_t count) {
    if (chunk_->code.size() >= static_cast<std::size_t>(largestProgram))
        lexer_.fail(ScriptErrorNumber::OutOfMemory);
    chunk_->code.push_back({op, count, a, place});
}

std::int32_t Compiler::constant(Value value) {
    chunk_->constants.push_back(std::move(value));
    return static_cast<std::int32_t>(chunk_->constants.size()) - 1;
}

std::size_t Compiler::jump(Op op) {
    emit(op);
    return chunk_->code.size() - 1;
}

std::size_t Compiler::here() {
    barrier_ = chunk_->code.size();
    return barrier_;
}

void Compiler::land(std::size_t jumpAt) { chunk_->code[jumpAt].a = static_cast<std::int32_t>(here()); }

void Compiler::landAll(const std::vector<std::size_t>& jumps) {
    for (const std::size_t at : jumps) land(at);
}

bool Compiler::accept(Token token) {
    if (lexer_.token() != token) return false;
    lexer_.next();
    return true;
}

void Compiler::expect(Token token, ScriptErrorNumber number) {
    if (!accept(token)) lexer_.fail(number);
}

std::string Compiler::takeName() {
    if (lexer_.token() != Token::Name) lexer_.fail(ScriptErrorNumber::ExpectedIdentifier);
    std::string name = lexer_.name();
    lexer_.next();
    return name;
}

const std::int32_t* Compiler::local(const std::string& name) const {
    if (scope_ == nullptr) return nullptr;
    const auto found = scope_->locals.find(name);
    return found == scope_->locals.end() ? nullptr : &found->second;
}

/// A name that the script has made its own, so that it no longer means a function of the language.
bool Compiler::isUserName(const std::string& name) const {
    if (local(name) != nullptr) return true;
    const Symbol* symbol = symbols_.find(name);
    return symbol != nullptr && symbol->declared;
}

/// A new variable where the statement stands: local in a procedure, else global.
void Compiler::declare(const std::string& name, ScriptPosition place) {
    if (scope_ != nullptr) {
        if (!scope_->locals.try_emplace(name, chunk_->locals).second)
            lexer_.fail(ScriptErrorNumber::NameRedefined, place);
        ++chunk_->locals;
        return;
    }
    Symbol& symbol = symbols_[symbols_.intern(name)];
    if (symbol.isConstant || symbol.procedure) lexer_.fail(ScriptErrorNumber::NameRedefined, place);
    symbol.declared = true;
}

/// Stores the value on hand under a name, which comes into being by it where names need no declaration.
void Compiler::store(const std::string& name, ScriptPosition place) {
    if (const std::int32_t* slot = local(name)) {
        if (scope_->constants.contains(name)) lexer_.fail(ScriptErrorNumber::IllegalAssignment, place);
        emitAt(place, Op::StoreLocal, *slot);
        return;
    }
    if (!isUserName(name)) {
        if (findFunction(builtinFunctions(), name) >= 0 || name == settings_.mathObject)
            lexer_.fail(ScriptErrorNumber::IllegalAssignment, place);
        if (settings_.optionExplicit) lexer_.fail(ScriptErrorNumber::VariableIsUndefined, place);
        declare(name, place);
        if (const std::int32_t* slot = local(name)) {
            emitAt(place, Op::StoreLocal, *slot);
            return;
        }
    }
    const std::int32_t symbol = symbols_.intern(name);
    if (symbols_[symbol].isConstant) lexer_.fail(ScriptErrorNumber::IllegalAssignment, place);
    emitAt(place, Op::StoreGlobal, symbol);
}

}  // namespace zg
