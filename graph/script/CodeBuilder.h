#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "graph/script/Code.h"
#include "graph/script/Globals.h"
#include "graph/script/ScriptError.h"
#include "graph/script/Syntax.h"

namespace zg::script {

/// What a name means at the point of use.
struct Place {
    std::uint16_t local = noLocal;
    std::uint32_t global = noGlobal;
    const HostFunction* function = nullptr;
    bool isLocalConstant = false;
    bool isUndefined = false;
};

/// What the pieces of one text share during compilation.
struct UnitContext {
    Globals& globals;
    const Syntax& syntax;
    std::shared_ptr<CodeUnit> unit;
    std::unordered_set<std::uint32_t> declared;  ///< names declared outside procedures

    [[noreturn]] void fail(ScriptErrorNumber number, std::uint32_t offset) const {
        throw ScriptError(number, unit->text, offset);
    }
};

/// Finds the place of a name in a piece of code, according to the declarations in it and around it.
class Scope {
 public:
    explicit Scope(UnitContext& context) : context_(context) {}

    /// From now on names belong to a procedure.
    void enterProcedure() { insideProcedure_ = true; }
    /// A new local variable; raises 1041 if the name is already declared.
    std::uint16_t declareLocal(std::uint32_t name, std::uint32_t offset, bool isConstant);
    /// The same for a function's result, which has the function's name.
    void declareResult(std::uint32_t name, std::uint32_t offset);
    bool isFunctionResult(std::uint32_t name) const { return hasResult_ && resultName_ == name; }
    Place find(std::uint32_t name, std::uint32_t offset);
    /// An unnamed local variable, reused after it is given back.
    std::uint16_t takeTemporary(std::uint32_t offset);
    void giveBack(std::uint16_t temporary) { freeTemporaries_.push_back(temporary); }
    std::size_t localCount() const { return localCount_; }

 private:
    struct Local {
        std::uint16_t index;
        bool isConstant;
        bool isImplicit;
    };

    std::uint16_t newLocal(std::uint32_t offset);

    UnitContext& context_;
    bool insideProcedure_ = false;
    bool hasResult_ = false;
    std::uint32_t resultName_ = 0;
    std::unordered_map<std::uint32_t, Local> locals_;
    std::vector<std::uint16_t> freeTemporaries_;
    std::size_t localCount_ = 0;
};

/// Appends instructions and tracks the stack depth they need.
class CodeBuilder {
 public:
    explicit CodeBuilder(UnitContext& context) : context_(context), scope_(context) {
        block_.unit = context.unit;
    }

    Scope& scope() { return scope_; }
    CodeBlock finish();

    void emit(Op op, int stackEffect, std::uint32_t offset, std::uint8_t arguments = 0,
              std::uint32_t target = noGlobal);
    void emitPlace(Op op, int stackEffect, const Place& place, std::uint32_t offset,
                   std::uint8_t arguments = 0);
    void pushConstant(Value value, std::uint32_t offset);
    /// Pops into a place; for a constant or function, raises 501 when the code runs.
    void store(const Place& place, std::uint32_t offset, Op op = Op::Store);
    void expression(Expression range);

    /// The index of the next instruction, for backward jumps.
    std::uint32_t here() const { return static_cast<std::uint32_t>(block_.code.size()); }
    /// A jump whose target is set later.
    std::size_t jump(Op op, std::uint32_t offset);
    void jumpBack(Op op, std::uint32_t target, std::uint32_t offset);
    void land(std::size_t jump) { block_.code[jump].target = here(); }
    /// Turns the call just compiled into one whose result is dropped.
    void dropResult(std::uint32_t offset);

 private:
    void node(const Node& node);
    void nameNode(const Node& node);
    void indexNode(const Node& node);
    void memberNode(const Node& node);
    void hostFunction(const HostFunction& function, std::uint8_t arguments, int effect, std::uint32_t offset);
    std::uint32_t functionIndex(const HostFunction& function);
    void raiseLater(ScriptErrorNumber number, int effect, std::uint32_t offset);

    UnitContext& context_;
    Scope scope_;
    CodeBlock block_;
    int depth_ = 0;
};

}  // namespace zg::script
