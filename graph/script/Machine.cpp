#include "graph/script/Machine.h"

#include <cmath>
#include <new>
#include <utility>

#include "graph/script/Limits.h"
#include "graph/script/Operators.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

Value Machine::run(const CodeBlock& block, std::int64_t timeoutMs) {
    timeoutMs_ = timeoutMs;
    startMs_ = timeoutMs < 0 ? 0 : context_.clock();
    context_.stepsToClockCheck = stepsBetweenClockChecks;
    block_ = &block;
    next_ = block.code.data() + 1;
    try {
        enter(block, nullptr, 0, false);
        execute();
    } catch (const ScriptError&) {
        reset();
        throw;
    } catch (const RunTimeError& error) {
        const bool isZeroByZero = dynamic_cast<const ZeroByZero*>(&error) != nullptr;
        rethrowWithPlace(error.number, error.description, isZeroByZero);
    } catch (const std::bad_alloc&) {
        rethrowWithPlace(static_cast<int>(ScriptErrorNumber::OutOfMemory),
                         errorDescription(ScriptErrorNumber::OutOfMemory));
    } catch (...) {
        reset();  // the exception with which whileRunning ends the script
        throw;
    }
    Value result = std::move(result_);
    reset();
    return result;
}

void Machine::reset() {
    pop(top_);
    frames_.clear();
    result_.clear();
}

/// The position is that of the current instruction.
void Machine::rethrowWithPlace(int number, const std::string& description, bool isZeroByZero) {
    const auto at = static_cast<std::size_t>(next_ - block_->code.data()) - 1;
    ScriptError error(number, description, block_->unit->text, block_->offsets[at]);
    error.isZeroByZero = isZeroByZero;
    reset();
    throw error;
}

void Machine::checkClock() {
    context_.stepsToClockCheck = stepsBetweenClockChecks;
    if (timeoutMs_ >= 0 && context_.clock() - startMs_ >= timeoutMs_) raise(ScriptErrorNumber::OutOfTime);
    if (!context_.whileRunning) return;
    const std::int64_t before = context_.clock();
    context_.whileRunning();
    startMs_ += context_.clock() - before;
}

void Machine::execute() {
    for (;;) {
        const Instruction& instruction = *next_++;
        if (--context_.stepsToClockCheck <= 0) checkClock();
        switch (instruction.op) {
            case Op::Constant:
                push(block_->unit->constants[instruction.target]);
                break;
            case Op::Load:
                load(instruction);
                break;
            case Op::Reference:
                reference(instruction);
                break;
            case Op::Store:
                store(instruction);
                break;
            case Op::StoreObject:
                storeObject(instruction);
                break;
            case Op::StoreElement:
                storeElement(instruction);
                break;
            case Op::MakeArray:
                makeArray(instruction);
                break;
            case Op::Index:
            case Op::IndexReference:
                index(instruction);
                break;
            case Op::CallProcedure:
                callProcedure(instruction);
                break;
            case Op::Member:
                requireObject(instruction.arguments);
                hostFunction(*block_->unit->functions[instruction.target], instruction.arguments, true);
                break;
            case Op::UnknownMember:
                requireObject(instruction.arguments);
                raise(ScriptErrorNumber::UnsupportedMember);
            case Op::AssignMember:
                raise(ScriptErrorNumber::UnsupportedMember);
            case Op::HostFunction:
                hostFunction(*block_->unit->functions[instruction.target], instruction.arguments, false);
                break;
            case Op::Unary:
                top() = apply(static_cast<Operator>(instruction.arguments), top());
                break;
            case Op::Binary:
                binary(instruction);
                break;
            case Op::ToNumber:
                if (!top().isNumber()) top() = Value(toNumber(top()));
                break;
            case Op::ForCheck:
                forCheck();
                break;
            case Op::Pop:
                pop();
                break;
            case Op::Jump:
                next_ = block_->code.data() + instruction.target;
                break;
            case Op::JumpIfFalse:
                if (!popCondition()) next_ = block_->code.data() + instruction.target;
                break;
            case Op::JumpIfTrue:
                if (popCondition()) next_ = block_->code.data() + instruction.target;
                break;
            case Op::Raise:
                raise(static_cast<ScriptErrorNumber>(instruction.target));
            case Op::Return:
                if (leave()) return;
                break;
        }
    }
}

bool Machine::popCondition() {
    const bool holds = toCondition(top());
    pop();
    return holds;
}

/// A local variable, what it refers to, or a global name.
Value& Machine::place(const Instruction& instruction) {
    const bool isLocal = instruction.local != noLocal &&
                         (instruction.target == noGlobal || !globals_[instruction.target].exists);
    if (!isLocal) return globals_[instruction.target].value;
    Value& local = stack_[base_ + instruction.local];
    return local.is(ValueType::Reference) ? *local.target() : local;
}

Value& Machine::placeToStore(const Instruction& instruction) {
    Value& target = place(instruction);
    if (target.is(ValueType::Array)) raise(ErrorNumber::TypeMismatch);
    if (instruction.target != noGlobal) {
        Global& global = globals_[instruction.target];
        if (global.constant) raise(ScriptErrorNumber::IllegalAssignment);
        if (&target == &global.value) global.exists = true;
    }
    return target;
}

void Machine::load(const Instruction& instruction) {
    Value& value = place(instruction);
    if (value.is(ValueType::Procedure)) return call(value, 0, true);
    if (value.is(ValueType::Array)) raise(ErrorNumber::TypeMismatch);
    push(value);
}

/// Constants and functions are passed by value, so that no procedure can change them.
void Machine::reference(const Instruction& instruction) {
    Value& value = place(instruction);
    if (value.is(ValueType::Procedure)) return call(value, 0, true);
    if (instruction.target != noGlobal) {
        Global& global = globals_[instruction.target];
        if (&value == &global.value) {
            if (global.constant) return push(value);
            global.exists = true;
        }
    }
    push(Value::reference(&value));
}

void Machine::store(const Instruction& instruction) {
    if (top().is(ValueType::Object)) raise(ScriptErrorNumber::UnsupportedMember);
    placeToStore(instruction) = std::move(top());
    pop();
}

void Machine::storeObject(const Instruction& instruction) {
    if (!top().is(ValueType::Object)) raise(ScriptErrorNumber::ObjectRequired);
    placeToStore(instruction) = top();
    pop();
}

void Machine::binary(const Instruction& instruction) {
    const auto operation = static_cast<Operator>(instruction.arguments);
    Value& left = top(1);
    const Value& right = top();
    if (left.is(ValueType::Double) && right.is(ValueType::Double) &&
        (operation == Operator::Add || operation == Operator::Subtract || operation == Operator::Multiply)) {
        const double result = numericResult(operation, left.number(), right.number());
        if (!std::isfinite(result)) raise(ErrorNumber::Overflow);
        left.setNumber(result);
    } else {
        left = apply(operation, left, right, context_.budget);
    }
    pop();
}

/// With a negative step the counter runs down to the limit, otherwise up to it.
void Machine::forCheck() {
    const Value& counter = top(2);
    const Operator operation = top().number() < 0 ? Operator::GreaterEqual : Operator::LessEqual;
    const bool goesOn = toCondition(apply(operation, counter, top(1), context_.budget));
    pop(3);
    push(Value::boolean(goesOn));
}

}  // namespace zg::script
