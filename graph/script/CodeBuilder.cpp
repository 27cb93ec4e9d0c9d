#include "graph/script/CodeBuilder.h"

#include <algorithm>
#include <utility>

#include "graph/script/Compiler.h"
#include "graph/script/Limits.h"

namespace zg::script {

std::uint16_t Scope::newLocal(std::uint32_t offset) {
    if (localCount_ == maxLocals) context_.fail(ScriptErrorNumber::OutOfMemory, offset);
    return static_cast<std::uint16_t>(localCount_++);
}

std::uint16_t Scope::declareLocal(std::uint32_t name, std::uint32_t offset, bool isConstant) {
    if (locals_.contains(name)) context_.fail(ScriptErrorNumber::NameRedefined, offset);
    const std::uint16_t index = newLocal(offset);
    locals_.emplace(name, Local{index, isConstant, false});
    return index;
}

void Scope::declareResult(std::uint32_t name, std::uint32_t offset) {
    declareLocal(name, offset, false);
    hasResult_ = true;
    resultName_ = name;
}

std::uint16_t Scope::takeTemporary(std::uint32_t offset) {
    if (freeTemporaries_.empty()) return newLocal(offset);
    const std::uint16_t index = freeTemporaries_.back();
    freeTemporaries_.pop_back();
    return index;
}

/// Declared local names come first, then declared global ones, then the language's functions. Any other name
/// is a global variable; in a procedure it is a local one until a global one exists.
Place Scope::find(std::uint32_t name, std::uint32_t offset) {
    const std::string& text = context_.syntax.names[name];
    Place place;
    const auto local = locals_.find(name);
    if (local != locals_.end()) {
        place.local = local->second.index;
        place.isLocalConstant = local->second.isConstant;
        if (!local->second.isImplicit) return place;
    }
    place.global = context_.globals.indexOf(text);
    if (context_.declared.contains(name)) return place;
    if (local == locals_.end() && isHostFunctionName(text, context_.globals)) {
        place.function = findFunction(text);
        return place;
    }
    const Global& global = context_.globals[place.global];
    if (global.declared) return place;
    place.isUndefined = context_.syntax.optionExplicit && !global.exists;
    if (insideProcedure_ && local == locals_.end() && !place.isUndefined) {
        place.local = newLocal(offset);
        locals_.emplace(name, Local{place.local, false, true});
    }
    return place;
}

CodeBlock CodeBuilder::finish() {
    block_.locals = scope_.localCount();
    block_.code.shrink_to_fit();
    block_.offsets.shrink_to_fit();
    return std::move(block_);
}

void CodeBuilder::emit(Op op, int stackEffect, std::uint32_t offset, std::uint8_t arguments,
                       std::uint32_t target) {
    block_.code.push_back({op, arguments, noLocal, target});
    block_.offsets.push_back(offset);
    depth_ += stackEffect;
    block_.stackNeed = std::max(block_.stackNeed, static_cast<std::size_t>(std::max(depth_, 0)) + 1);
}

void CodeBuilder::emitPlace(Op op, int stackEffect, const Place& place, std::uint32_t offset,
                            std::uint8_t arguments) {
    emit(op, stackEffect, offset, arguments, place.global);
    block_.code.back().local = place.local;
}

void CodeBuilder::pushConstant(Value value, std::uint32_t offset) {
    auto& constants = context_.unit->constants;
    constants.push_back(std::move(value));
    emit(Op::Constant, 1, offset, 0, static_cast<std::uint32_t>(constants.size() - 1));
}

void CodeBuilder::raiseLater(ScriptErrorNumber number, int effect, std::uint32_t offset) {
    emit(Op::Raise, effect, offset, 0, static_cast<std::uint32_t>(number));
}

void CodeBuilder::store(const Place& place, std::uint32_t offset, Op op) {
    if (place.isUndefined) return raiseLater(ScriptErrorNumber::VariableUndefined, -1, offset);
    if (place.function || place.isLocalConstant)
        return raiseLater(ScriptErrorNumber::IllegalAssignment, -1, offset);
    emitPlace(op, -1, place, offset);
}

std::size_t CodeBuilder::jump(Op op, std::uint32_t offset) {
    emit(op, op == Op::Jump ? 0 : -1, offset);
    return block_.code.size() - 1;
}

void CodeBuilder::jumpBack(Op op, std::uint32_t target, std::uint32_t offset) {
    emit(op, op == Op::Jump ? 0 : -1, offset, 0, target);
}

void CodeBuilder::expression(Expression range) {
    for (std::uint32_t i = range.first; i < range.end; ++i) node(context_.syntax.nodes[i]);
}

void CodeBuilder::node(const Node& node) {
    switch (node.kind) {
        case NodeKind::Constant:
            return emit(Op::Constant, 1, node.offset, 0, node.index);
        case NodeKind::Name:
            return nameNode(node);
        case NodeKind::Index:
            return indexNode(node);
        case NodeKind::Member:
            return memberNode(node);
        case NodeKind::Unary:
            return emit(Op::Unary, 0, node.offset, static_cast<std::uint8_t>(node.operation));
        case NodeKind::Binary:
            return emit(Op::Binary, -1, node.offset, static_cast<std::uint8_t>(node.operation));
    }
}

void CodeBuilder::nameNode(const Node& node) {
    const Place place = scope_.find(node.index, node.offset);
    if (place.function) return hostFunction(*place.function, 0, 1, node.offset);
    if (place.isUndefined) return raiseLater(ScriptErrorNumber::VariableUndefined, 1, node.offset);
    const bool byReference = node.asReference && !place.isLocalConstant;
    emitPlace(byReference ? Op::Reference : Op::Load, 1, place, node.offset);
}

void CodeBuilder::indexNode(const Node& node) {
    Place place = scope_.find(node.index, node.offset);
    const int effect = 1 - node.arguments;
    if (place.function) return hostFunction(*place.function, node.arguments, effect, node.offset);
    if (place.isUndefined) return raiseLater(ScriptErrorNumber::VariableUndefined, effect, node.offset);
    // Inside a function its own name with parentheses is a call, without them the result so far.
    if (scope_.isFunctionResult(node.index)) {
        place.local = noLocal;
        place.global = context_.globals.indexOf(context_.syntax.names[node.index]);
    }
    emitPlace(node.asReference ? Op::IndexReference : Op::Index, effect, place, node.offset, node.arguments);
}

void CodeBuilder::memberNode(const Node& node) {
    const int effect = -static_cast<int>(node.arguments);
    const HostFunction* const member = findMathMember(context_.syntax.names[node.index]);
    if (!member) return emit(Op::UnknownMember, effect, node.offset, node.arguments);
    emit(Op::Member, effect, node.offset, node.arguments, functionIndex(*member));
}

void CodeBuilder::hostFunction(const HostFunction& function, std::uint8_t arguments, int effect,
                               std::uint32_t offset) {
    emit(Op::HostFunction, effect, offset, arguments, functionIndex(function));
}

std::uint32_t CodeBuilder::functionIndex(const HostFunction& function) {
    auto& functions = context_.unit->functions;
    const auto found = std::find(functions.begin(), functions.end(), &function);
    const auto index = static_cast<std::uint32_t>(found - functions.begin());
    if (found == functions.end()) functions.push_back(&function);
    return index;
}

void CodeBuilder::dropResult(std::uint32_t offset) {
    Instruction& last = block_.code.back();
    if (last.op == Op::Index) {
        last.op = Op::CallProcedure;
        --depth_;
    } else {
        emit(Op::Pop, -1, offset);
    }
}

}  // namespace zg::script
