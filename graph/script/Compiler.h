#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "graph/script/Lexer.h"
#include "graph/script/Symbols.h"

namespace zg {

/// Depth to which expressions and statements may be nested.
constexpr int deepestNesting = 200;

/// Compiles a script in one pass, without a tree: expressions by precedence, statements by their first word.
/// Throws the first ScriptError with its place; symbols that were seen until then stay known, without a
/// value.
class Compiler {
 public:
    Compiler(std::string_view source, SymbolTable& symbols, ScriptSettings& settings);

    /// The statements of the whole text. Procedures found in it are handed out by procedures().
    Chunk compileScript();

    /// The one expression that the text is.
    Chunk compileExpression();

    const std::vector<std::shared_ptr<Procedure>>& procedures() const { return procedures_; }

 private:
    /// The names of the procedure being compiled.
    struct Scope {
        Procedure* procedure = nullptr;
        std::unordered_map<std::string, std::int32_t> locals;
        std::set<std::string> constants;
    };
    struct Loop {
        Token kind;  ///< For or Do
        std::vector<std::size_t> exits;
    };
    class Nesting;

    // Expressions
    void expression() { precedence(1); }
    void precedence(int lowest);
    void prefix();
    void literal(Value value);
    void nameExpression();
    void memberExpression();
    std::uint8_t arguments(std::vector<CallTarget>* targets);
    void callExpression(const std::string& name, ScriptPosition place, bool isStatement, bool parenthesised);
    void loadName(const std::string& name, ScriptPosition place);

    // Statements
    void statements();
    void statement();
    void endOfStatement();
    void assignment(const std::string& name, ScriptPosition place);
    void nameStatement();
    void memberStatement();
    void callStatement();
    void dimStatement();
    void constStatement();
    void ifStatement();
    void ifBlock();
    void ifLine();
    void selectStatement();
    void forStatement();
    void doStatement();
    void whileStatement();
    void exitStatement();
    void optionStatement();
    void procedureStatement(bool isFunction);
    void parameters(Procedure& procedure);
    void conditionalJump(bool leaveWhenTrue, std::vector<std::size_t>& exits);

    // Emission
    void emit(Op op, std::int32_t a = 0, std::uint8_t count = 0) { emitAt(lexer_.position(), op, a, count); }
    void emitAt(ScriptPosition place, Op op, std::int32_t a = 0, std::uint8_t count = 0);
    void emitBinary(ScriptPosition place, Operator operation);
    bool fold(Operator operation);
    std::int32_t constant(Value value);
    std::size_t jump(Op op);
    void land(std::size_t jumpAt);
    void landAll(const std::vector<std::size_t>& jumps);
    std::size_t here();
    std::int32_t temporary() { return chunk_->locals++; }

    // Names and tokens
    bool accept(Token token);
    void expect(Token token, ScriptErrorNumber number);
    std::string takeName();
    const std::int32_t* local(const std::string& name) const;
    bool isUserName(const std::string& name) const;
    void declare(const std::string& name, ScriptPosition place);
    void store(const std::string& name, ScriptPosition place);
    bool atBlockEnd() const;
    void skipSeparators();

    SymbolTable& symbols_;
    ScriptSettings& settings_;
    Lexer lexer_;
    Chunk* chunk_ = nullptr;
    Scope* scope_ = nullptr;
    std::vector<Loop> loops_;
    std::vector<std::shared_ptr<Procedure>> procedures_;
    std::set<std::string> constants_;  ///< global ones of this text; those of an earlier text may come again
    std::size_t barrier_ = 0;          ///< instructions before it may be jumped to and are not folded
    int nesting_ = 0;
    bool inLine_ = false;  ///< within an If of one line
};

}  // namespace zg
