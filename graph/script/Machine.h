#pragma once

#include <cstdint>
#include <vector>

#include "graph/script/Code.h"
#include "graph/script/Globals.h"
#include "graph/script/ValueStack.h"

namespace zg::script {

/// Runs compiled code on a stack of values, which also holds the variables of running procedures.
class Machine {
 public:
    Machine(Globals& globals, HostContext& context) : globals_(globals), context_(context) {}

    /// Runs a block to its end and returns the value that it leaves, Empty if it leaves none. Raises a
    /// ScriptError; the machine can run another block in either case. A time-out below 0 milliseconds means
    /// none.
    Value run(const CodeBlock& block, std::int64_t timeoutMs);

 private:
    struct Frame {
        const CodeBlock* block;
        const Procedure* procedure;  ///< null for code outside procedures
        const Instruction* next;     ///< where the caller continues
        std::size_t base;            ///< start of its variables on the stack
        bool wantsResult;
    };

    void execute();
    void checkClock();
    void reset();
    [[noreturn]] void rethrowWithPlace(int number, const std::string& description, bool isZeroByZero = false);

    // The stack. All values above its top are Empty.
    Value& top(std::size_t below = 0) { return stack_[top_ - 1 - below]; }
    void push(const Value& value) { stack_[top_++] = value; }
    void push(Value&& value) { stack_[top_++] = std::move(value); }
    void pop() { stack_[--top_].clear(); }
    void pop(std::size_t count) {
        for (; count > 0; --count) pop();
    }
    bool popCondition();

    Value& place(const Instruction& instruction);
    Value& placeToStore(const Instruction& instruction);
    void load(const Instruction& instruction);
    void reference(const Instruction& instruction);
    void store(const Instruction& instruction);
    void storeObject(const Instruction& instruction);
    void storeElement(const Instruction& instruction);
    void makeArray(const Instruction& instruction);
    void index(const Instruction& instruction);
    void callProcedure(const Instruction& instruction);
    void enter(const CodeBlock& block, const Procedure* procedure, std::size_t base, bool wantsResult);
    void call(const Value& procedure, std::size_t arguments, bool wantsResult);
    bool leave();
    Value& element(const Value& array, std::size_t indexes, std::size_t below);
    void takeValues(std::size_t arguments);
    void hostFunction(const HostFunction& function, std::size_t arguments, bool isMember);
    void requireObject(std::size_t below);
    void binary(const Instruction& instruction);
    void forCheck();

    Globals& globals_;
    HostContext& context_;
    ValueStack stack_;
    std::size_t top_ = 0;
    std::vector<Frame> frames_;
    const Instruction* next_ = nullptr;
    const CodeBlock* block_ = nullptr;
    std::size_t base_ = 0;
    std::int64_t startMs_ = 0;
    std::int64_t timeoutMs_ = -1;
    Value result_;
};

}  // namespace zg::script
