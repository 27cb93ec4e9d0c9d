#include <utility>

#include "graph/script/Limits.h"
#include "graph/script/Machine.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

void Machine::enter(const CodeBlock& block, const Procedure* procedure, std::size_t base, bool wantsResult) {
    const std::size_t variables = base + block.locals;
    if (frames_.size() == maxCallDepth || variables + block.stackNeed > maxStackValues)
        raise(ScriptErrorNumber::OutOfStackSpace);
    stack_.reserve(variables + block.stackNeed);
    frames_.push_back({&block, procedure, next_, base, wantsResult});
    top_ = variables;
    base_ = base;
    block_ = &block;
    next_ = block.code.data();
}

void Machine::call(const Value& callee, std::size_t arguments, bool wantsResult) {
    const auto& procedure = *static_cast<const Procedure*>(callee.payload());
    if (wantsResult && !procedure.isFunction) raise(ErrorNumber::TypeMismatch);
    if (arguments != procedure.block.parameters) raise(ScriptErrorNumber::WrongArguments);
    for (std::size_t i = 0; i < arguments; ++i) {
        Value& argument = top(arguments - 1 - i);
        if (procedure.byReference[i] || !argument.is(ValueType::Reference)) continue;
        if (argument.target()->is(ValueType::Array)) raise(ErrorNumber::TypeMismatch);
        argument = Value(*argument.target());
    }
    enter(procedure.block, &procedure, top_ - arguments, wantsResult);
}

/// Ends the running piece of code; returns whether it was the outermost one.
bool Machine::leave() {
    const Frame frame = frames_.back();
    Value result;
    if (!frame.procedure) {
        if (top_ > frame.base + frame.block->locals) result_ = std::move(top());
        return true;
    }
    if (frame.procedure->isFunction) result = std::move(stack_[frame.base + frame.block->parameters]);
    pop(top_ - frame.base);
    frames_.pop_back();
    base_ = frames_.back().base;
    block_ = frames_.back().block;
    next_ = frame.next;
    if (frame.wantsResult) push(std::move(result));
    return false;
}

/// Replaces arguments passed by reference with the values they refer to.
void Machine::takeValues(std::size_t arguments) {
    for (std::size_t i = 0; i < arguments; ++i) {
        Value& argument = top(i);
        if (!argument.is(ValueType::Reference)) continue;
        if (argument.target()->is(ValueType::Array)) raise(ErrorNumber::TypeMismatch);
        argument = Value(*argument.target());
    }
}

void Machine::hostFunction(const HostFunction& function, std::size_t arguments, bool isMember) {
    if (arguments < function.fewest || arguments > function.most) raise(ScriptErrorNumber::WrongArguments);
    takeValues(arguments);
    Value result = function.function(context_, Arguments(&stack_[top_ - arguments], arguments));
    pop(arguments + (isMember ? 1 : 0));
    push(std::move(result));
}

void Machine::requireObject(std::size_t below) {
    if (!top(below).is(ValueType::Object)) raise(ScriptErrorNumber::ObjectRequired);
}

/// The array element whose indexes are that many values below the top, the first one lowest.
Value& Machine::element(const Value& array, std::size_t indexes, std::size_t below) {
    auto& content = *static_cast<ArrayPayload*>(array.payload());
    if (indexes != content.bounds.size()) raise(ErrorNumber::SubscriptOutOfRange);
    std::size_t position = 0;
    for (std::size_t i = 0; i < indexes; ++i) {
        const std::int32_t index = toLong(top(below + indexes - 1 - i));
        const std::uint32_t bound = content.bounds[i];
        if (index < 0 || static_cast<std::uint32_t>(index) > bound) raise(ErrorNumber::SubscriptOutOfRange);
        position = position * (std::size_t{bound} + 1) + static_cast<std::size_t>(index);
    }
    return content.elements[position];
}

void Machine::index(const Instruction& instruction) {
    const std::size_t arguments = instruction.arguments;
    Value& callee = place(instruction);
    if (callee.is(ValueType::Procedure)) return call(callee, arguments, true);
    if (callee.is(ValueType::Object)) raise(ScriptErrorNumber::UnsupportedMember);
    if (!callee.is(ValueType::Array)) raise(ErrorNumber::TypeMismatch);
    takeValues(arguments);
    Value& found = element(callee, arguments, 0);
    pop(arguments);
    if (instruction.op == Op::IndexReference)
        push(Value::reference(&found));
    else
        push(found);
}

void Machine::storeElement(const Instruction& instruction) {
    const Value& array = place(instruction);
    if (instruction.target != noGlobal && &array == &globals_[instruction.target].value &&
        globals_[instruction.target].constant)
        raise(ScriptErrorNumber::IllegalAssignment);
    if (!array.is(ValueType::Array)) raise(ErrorNumber::TypeMismatch);
    if (top().is(ValueType::Object)) raise(ScriptErrorNumber::UnsupportedMember);
    element(array, instruction.arguments, 1) = std::move(top());
    pop(instruction.arguments + std::size_t{1});
}

void Machine::makeArray(const Instruction& instruction) {
    std::vector<std::uint32_t> bounds;
    for (std::size_t i = instruction.arguments; i > 0; --i)
        bounds.push_back(static_cast<std::uint32_t>(top(i - 1).number()));
    pop(instruction.arguments);
    Value& array = place(instruction);
    array.clear();
    array = Value(ValueType::Array, std::make_shared<ArrayPayload>(std::move(bounds), context_.budget));
}

void Machine::callProcedure(const Instruction& instruction) {
    const Value& callee = place(instruction);
    if (callee.is(ValueType::Procedure)) return call(callee, instruction.arguments, false);
    if (callee.is(ValueType::Object)) raise(ScriptErrorNumber::UnsupportedMember);
    raise(ErrorNumber::TypeMismatch);
}

}  // namespace zg::script
