#include "graph/script/Machine.h"

#include <span>

namespace zg {

Machine::Machine(SymbolTable& symbols, RandomState& random, const ScriptClock& clock, std::int32_t timeoutMs)
    : symbols_(symbols), random_(random), clock_(clock), timeoutMs_(timeoutMs) {
    if (timeoutMs_ >= 0) startedAt_ = clock_();
}

void Machine::push(Value value) {
    if (stack_.size() >= largestStack) raiseScript(ScriptErrorNumber::OutOfStackSpace);
    stack_.push_back(std::move(value));
}

Value Machine::pop() {
    Value value = std::move(stack_.back());
    stack_.pop_back();
    return value;
}

Value Machine::run(const Chunk& chunk) {
    frames_.push_back({&chunk, nullptr, {}, 0, 0});
    locals_.resize(static_cast<std::size_t>(chunk.locals));
    const Instruction* current = &chunk.code.front();
    try {
        while (!frames_.empty()) {
            Frame& frame = frames_.back();
            current = &frame.chunk->code[frame.next++];
            if (++steps_ % stepsBetweenClockChecks == 0) checkClock();
            execute(*current);
        }
    } catch (const ScriptError&) {
        throw;
    } catch (const RunTimeError& error) {
        throw ScriptError(error.number, error.description, current->position);
    }
    return stack_.empty() ? Value() : pop();
}

void Machine::checkClock() {
    if (timeoutMs_ >= 0 && clock_() - startedAt_ > timeoutMs_) raiseScript(ScriptErrorNumber::TimedOut);
}

void Machine::execute(const Instruction& instruction) {
    Frame& frame = frames_.back();
    const auto a = static_cast<std::size_t>(instruction.a);
    switch (instruction.op) {
        case Op::Constant:
            return push(frame.chunk->constants[a]);
        case Op::LoadGlobal:
            return loadGlobal(instruction.a);
        case Op::LoadLocal:
            return push(locals_[frame.locals + a]);
        case Op::StoreGlobal:
            symbols_[instruction.a].value = pop();
            symbols_[instruction.a].procedure = nullptr;
            return;
        case Op::StoreLocal:
            locals_[frame.locals + a] = pop();
            return;
        case Op::DefineConstant:
            symbols_[instruction.a].value = pop();
            return;
        case Op::Pop:
            pop();
            return;
        case Op::Negate:
            return push(negate(pop()));
        case Op::Not:
            return push(logicalNot(pop()));
        case Op::Plus:
            if (stack_.back().kind != Kind::Null) toNumber(stack_.back());
            return;
        case Op::Binary: {
            const Value right = pop();
            const Value left = pop();
            return push(applyOperator(static_cast<Operator>(instruction.a), left, right));
        }
        case Op::Jump:
            frame.next = a;
            return;
        case Op::JumpIfFalse:
            if (!isTrue(pop())) frame.next = a;
            return;
        case Op::JumpIfTrue:
            if (isTrue(pop())) frame.next = a;
            return;
        case Op::ForTest:
            return forTest();
        case Op::Builtin:
            return callFunction(builtinFunctions()[a], instruction.count);
        case Op::Member:
            return callFunction(mathLibMembers()[a], instruction.count);
        case Op::Call:
            return call(frame.chunk->calls[a]);
        case Op::Return:
            return leave();
    }
}

void Machine::loadGlobal(std::int32_t symbol) {
    if (!symbols_[symbol].procedure) return push(symbols_[symbol].value);
    CallSite site;
    site.symbol = symbol;
    call(site);
}

void Machine::callFunction(const FunctionEntry& entry, std::size_t count) {
    const std::span<Value> arguments(stack_.data() + (stack_.size() - count), count);
    Value result = entry.body(arguments, random_);
    stack_.resize(stack_.size() - count);
    push(std::move(result));
}

void Machine::forTest() {
    const double step = toNumber(pop());
    const double limit = toNumber(pop());
    const double value = toNumber(pop());
    push(Value::ofBoolean(step >= 0 ? value <= limit : value >= limit));
}

void Machine::call(const CallSite& site) {
    const std::shared_ptr<const Procedure> procedure = symbols_[site.symbol].procedure;
    // What is no procedure cannot be called; a Sub gives nothing that an expression could use.
    if (!procedure || (!procedure->isFunction && !site.isStatement)) raise(ErrorNumber::TypeMismatch);
    if (site.arguments.size() != procedure->byReference.size())
        raiseScript(ScriptErrorNumber::WrongArgumentCount);
    enter(procedure, site);
}

void Machine::enter(std::shared_ptr<const Procedure> procedure, const CallSite& site) {
    if (frames_.size() >= deepestCalls) raiseScript(ScriptErrorNumber::OutOfStackSpace);
    const std::size_t base = locals_.size();
    locals_.resize(base + static_cast<std::size_t>(procedure->chunk.locals));
    const std::size_t firstParameter = base + (procedure->isFunction ? 1 : 0);
    for (std::size_t i = site.arguments.size(); i-- > 0;) locals_[firstParameter + i] = pop();
    const Chunk* chunk = &procedure->chunk;
    frames_.push_back({chunk, std::move(procedure), site, 0, base});
}

/// Parameters by reference give their values back to the variables that they came from.
void Machine::handBack(const Frame& frame) {
    const std::size_t firstParameter = frame.locals + (frame.procedure->isFunction ? 1 : 0);
    const std::size_t callerLocals = frames_[frames_.size() - 2].locals;
    for (std::size_t i = 0; i < frame.site.arguments.size(); ++i) {
        const CallTarget& target = frame.site.arguments[i];
        if (!frame.procedure->byReference[i]) continue;
        if (target.place == CallTarget::Place::Local)
            locals_[callerLocals + static_cast<std::size_t>(target.index)] = locals_[firstParameter + i];
        if (target.place == CallTarget::Place::Global && !symbols_[target.index].isConstant &&
            !symbols_[target.index].procedure)
            symbols_[target.index].value = locals_[firstParameter + i];
    }
}

void Machine::leave() {
    if (frames_.back().procedure) handBack(frames_.back());
    const Frame frame = std::move(frames_.back());
    frames_.pop_back();
    const bool wanted = frame.procedure && frame.procedure->isFunction && !frame.site.isStatement;
    Value result = wanted ? locals_[frame.locals] : Value();
    locals_.resize(frame.locals);
    if (wanted) push(std::move(result));
}

}  // namespace zg
