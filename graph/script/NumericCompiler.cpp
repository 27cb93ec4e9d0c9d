#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "graph/script/Compiler.h"
#include "graph/script/HostFunctions.h"
#include "graph/script/NumericCode.h"
#include "graph/script/SmallPowers.h"

namespace zg::script {

namespace {

/// A longer formula gains nothing from the fast form.
constexpr std::size_t mostNodes = 4096;

enum class OperandKind : std::uint8_t { Constant, Variable, Accumulator, Temporary, Object };

/// A value waiting for its operator.
struct Operand {
    OperandKind kind = OperandKind::Accumulator;
    double number = 0;  ///< of a constant
    const Value* variable = nullptr;
    const double* cell = nullptr;  ///< of a temporary
};

template <Operator operation>
double asFunction(double left, double right) {
    return numericResult(operation, left, right);
}

using Binary = double (*)(double, double);

/// The operators without an instruction of their own.
Binary functionOf(Operator operation) {
    switch (operation) {
        case Operator::Power:
            return power;
        case Operator::IntegerDivide:
            return asFunction<Operator::IntegerDivide>;
        case Operator::Modulo:
            return asFunction<Operator::Modulo>;
        case Operator::Equal:
            return asFunction<Operator::Equal>;
        case Operator::NotEqual:
            return asFunction<Operator::NotEqual>;
        case Operator::Less:
            return asFunction<Operator::Less>;
        case Operator::Greater:
            return asFunction<Operator::Greater>;
        case Operator::LessEqual:
            return asFunction<Operator::LessEqual>;
        case Operator::GreaterEqual:
            return asFunction<Operator::GreaterEqual>;
        case Operator::And:
            return asFunction<Operator::And>;
        case Operator::Or:
            return asFunction<Operator::Or>;
        case Operator::Xor:
            return asFunction<Operator::Xor>;
        case Operator::Eqv:
            return asFunction<Operator::Eqv>;
        case Operator::Imp:
            return asFunction<Operator::Imp>;
        default:
            return nullptr;
    }
}

struct FunctionOp {
    std::string_view name;
    NumericOp op;
};

constexpr FunctionOp functionOps[] = {
    {"sin", NumericOp::Sin}, {"cos", NumericOp::Cos}, {"tan", NumericOp::Tan}, {"atn", NumericOp::Atn},
    {"exp", NumericOp::Exp}, {"log", NumericOp::Log}, {"sqr", NumericOp::Sqr}, {"abs", NumericOp::Abs},
    {"int", NumericOp::Int}, {"fix", NumericOp::Fix},
};

}  // namespace

/// One pass over the nodes with a stack of waiting operands, at most one of which is in the accumulator.
class NumericCompiler {
 public:
    NumericCompiler(const Syntax& syntax, Globals& globals) : syntax_(syntax), globals_(globals) {}

    bool compile();
    NumericCode take() { return std::move(made_); }

 private:
    bool node(const Node& node);
    void finish();
    bool constant(const Value& value);
    bool nameNode(const Node& node);
    bool hostFunction(const HostFunction& function, std::size_t arguments);
    bool member(const HostFunction& member, std::size_t arguments);
    bool unary(Operator operation);
    bool unaryFunction(const HostFunction& function);
    bool binary(Operator operation);
    bool fold(Operator operation);
    bool smallPower();
    void twoCells(Operator operation, const Operand& left, const Operand& right);
    void withAccumulator(Operator operation, const Operand& left, const Operand& right);
    void callBinary(Binary function);
    void emit(NumericOp op, const double* a = nullptr, const double* b = nullptr);
    const double* newCell(double number);
    const double* cellOf(const Operand& operand);
    const double* inMemory(std::size_t position);
    void spill();
    void load(const Operand& operand);
    void replaceTop(std::size_t count, const Operand& result);
    static bool isCell(const Operand& operand) { return operand.kind != OperandKind::Accumulator; }

    const Syntax& syntax_;
    Globals& globals_;
    NumericCode made_;
    std::vector<Operand> waiting_;
    std::vector<double*> temporaries_;  ///< by position on the stack of operands
};

bool NumericCompiler::compile() {
    const Expression range = syntax_.expression;
    const std::size_t count = range.end - range.first;
    if (count == 0 || count > mostNodes) return false;
    made_.cells_.reserve(2 * count + 2);
    for (std::uint32_t i = range.first; i < range.end; ++i)
        if (!node(syntax_.nodes[i])) return false;
    finish();
    return true;
}

/// A formula that is only a product and a sum needs no instructions.
void NumericCompiler::finish() {
    NumericCode::Linear& linear = made_.linear_;
    if (isCell(waiting_.front())) {
        linear = {cellOf(waiting_.front()), newCell(1), newCell(0)};
        return;
    }
    const NumericInstruction last = made_.code_.back();
    const bool isOnly = made_.code_.size() == 1;
    emit(NumericOp::Result);
    if (!isOnly) return;
    if (last.op == NumericOp::SquareCell) linear = {last.a, last.a, newCell(0)};
    if (last.op == NumericOp::MultiplyCells) linear = {last.a, last.b, newCell(0)};
    if (last.op == NumericOp::AddCells) linear = {last.a, newCell(1), last.b};
    if (last.op == NumericOp::LinearCells) linear = {last.a, last.b, last.c};
}

const double* NumericCompiler::newCell(double number) {
    made_.cells_.push_back(number);
    return &made_.cells_.back();
}

bool NumericCompiler::node(const Node& node) {
    switch (node.kind) {
        case NodeKind::Constant:
            return constant(syntax_.constants[node.index]);
        case NodeKind::Name:
            return nameNode(node);
        case NodeKind::Index: {
            const std::string& name = syntax_.names[node.index];
            if (!isHostFunctionName(name, globals_)) return false;
            return hostFunction(*findFunction(name), node.arguments);
        }
        case NodeKind::Member: {
            const HostFunction* const found = findMathMember(syntax_.names[node.index]);
            return found && member(*found, node.arguments);
        }
        case NodeKind::Unary:
            return unary(node.operation);
        case NodeKind::Binary:
            return binary(node.operation);
    }
    return false;
}

bool NumericCompiler::constant(const Value& value) {
    if (!value.isPlainNumber()) return false;
    waiting_.push_back({OperandKind::Constant, value.number()});
    return true;
}

bool NumericCompiler::nameNode(const Node& node) {
    const std::string& name = syntax_.names[node.index];
    if (isHostFunctionName(name, globals_)) return false;
    const Global& global = globals_[globals_.indexOf(name)];
    if (global.value.is(ValueType::Procedure)) return false;
    const bool isObject = global.constant && global.value.is(ValueType::Object);
    waiting_.push_back({isObject ? OperandKind::Object : OperandKind::Variable, 0, &global.value});
    return true;
}

void NumericCompiler::emit(NumericOp op, const double* a, const double* b) {
    NumericInstruction& made = made_.code_.emplace_back();
    made.op = op;
    made.a = a;
    made.b = b;
}

/// The address of the number of an operand outside the accumulator. A variable read this way must be a
/// number.
const double* NumericCompiler::cellOf(const Operand& operand) {
    switch (operand.kind) {
        case OperandKind::Constant:
            return newCell(operand.number);
        case OperandKind::Object:  // as a number it makes the formula fall back to the machine
        case OperandKind::Variable: {
            auto& variables = made_.variables_;
            if (std::find(variables.begin(), variables.end(), operand.variable) == variables.end())
                variables.push_back(operand.variable);
            return operand.variable->numberAddress();
        }
        default:
            return operand.cell;
    }
}

/// The cell of the operand at that position, moved out of the accumulator if it was there.
const double* NumericCompiler::inMemory(std::size_t position) {
    Operand& operand = waiting_[position];
    if (isCell(operand)) return cellOf(operand);
    while (temporaries_.size() <= position) {
        made_.cells_.push_back(0);
        temporaries_.push_back(&made_.cells_.back());
    }
    emit(NumericOp::Store);
    made_.code_.back().into = temporaries_[position];
    operand = {OperandKind::Temporary, 0, nullptr, temporaries_[position]};
    return operand.cell;
}

/// Frees the accumulator.
void NumericCompiler::spill() {
    for (std::size_t i = 0; i < waiting_.size(); ++i)
        if (!isCell(waiting_[i])) inMemory(i);
}

void NumericCompiler::load(const Operand& operand) {
    spill();
    emit(NumericOp::Load, cellOf(operand));
}

void NumericCompiler::replaceTop(std::size_t count, const Operand& result) {
    waiting_.resize(waiting_.size() - count);
    waiting_.push_back(result);
}

bool NumericCompiler::hostFunction(const HostFunction& function, std::size_t arguments) {
    if (arguments == 0 && function.nullary) {
        waiting_.push_back({OperandKind::Constant, function.nullary()});
        return true;
    }
    if (arguments == 1 && function.unary) return unaryFunction(function);
    if (arguments != 2 || !function.binary) return false;
    callBinary(function.binary);
    return true;
}

/// The object is below the arguments. Only an object of the engine itself is accepted, since statements
/// cannot replace its value.
bool NumericCompiler::member(const HostFunction& member, std::size_t arguments) {
    const Operand object = waiting_[waiting_.size() - arguments - 1];
    if (object.kind != OperandKind::Object || !hostFunction(member, arguments)) return false;
    waiting_.erase(waiting_.end() - 2);
    return true;
}

bool NumericCompiler::unary(Operator operation) {
    const Operand operand = waiting_.back();
    if (operand.kind == OperandKind::Constant) {
        const double result = operation == Operator::Not ? numericNot(operand.number) : -operand.number;
        replaceTop(1, {OperandKind::Constant, result});
        return std::isfinite(result);
    }
    if (isCell(operand)) load(operand);
    if (operation == Operator::Not) {
        emit(NumericOp::CallUnary);
        made_.code_.back().unary = numericNot;
    } else {
        emit(NumericOp::Negate);
    }
    replaceTop(1, {});
    return true;
}

bool NumericCompiler::unaryFunction(const HostFunction& function) {
    const Operand operand = waiting_.back();
    if (operand.kind == OperandKind::Constant) {
        const double result = function.unary(operand.number);
        replaceTop(1, {OperandKind::Constant, result});
        return std::isfinite(result);
    }
    NumericOp op = NumericOp::CallUnary;
    // No member of an object has the name of one of these.
    for (const FunctionOp& entry : functionOps)
        if (entry.name == function.name) op = entry.op;
    const bool isSine = op == NumericOp::Sin;
    if ((isSine || op == NumericOp::Cos) && isCell(operand)) {
        spill();
        emit(isSine ? NumericOp::SinCell : NumericOp::CosCell, cellOf(operand));
    } else if ((isSine || op == NumericOp::Cos) && made_.code_.back().op == NumericOp::MultiplyCells) {
        made_.code_.back().op = isSine ? NumericOp::SinProduct : NumericOp::CosProduct;
    } else {
        if (isCell(operand)) load(operand);
        emit(op);
        if (op == NumericOp::CallUnary) made_.code_.back().unary = function.unary;
    }
    replaceTop(1, {});
    return true;
}

bool NumericCompiler::binary(Operator operation) {
    const Operand left = waiting_[waiting_.size() - 2];
    const Operand right = waiting_.back();
    if (left.kind == OperandKind::Constant && right.kind == OperandKind::Constant) return fold(operation);
    if (operation == Operator::Concatenate) return false;
    if (operation == Operator::Power && smallPower()) return true;
    if (const Binary function = functionOf(operation)) {
        callBinary(function);
        return true;
    }
    if (isCell(left) && isCell(right))
        twoCells(operation, left, right);
    else
        withAccumulator(operation, left, right);
    replaceTop(2, {});
    return true;
}

/// An impossible result is left to the machine, which raises the error when the formula runs.
bool NumericCompiler::fold(Operator operation) {
    if (operation == Operator::Concatenate) return false;
    const double right = waiting_.back().number;
    const double result = numericResult(operation, waiting_[waiting_.size() - 2].number, right);
    replaceTop(2, {OperandKind::Constant, result});
    return std::isfinite(result);
}

bool NumericCompiler::smallPower() {
    const Operand base = waiting_[waiting_.size() - 2];
    const Operand exponent = waiting_.back();
    if (exponent.kind != OperandKind::Constant) return false;
    if (exponent.number != 2 && exponent.number != 3 && exponent.number != 4 && exponent.number != 5)
        return false;
    waiting_.pop_back();
    if (exponent.number <= 3 && isCell(base)) {
        spill();
        emit(exponent.number == 2 ? NumericOp::SquareCell : NumericOp::CubeCell, cellOf(base));
    } else {
        if (isCell(base)) load(base);
        constexpr std::array<NumericOp, 4> powers = {NumericOp::Square, NumericOp::Cube, NumericOp::Fourth,
                                                     NumericOp::Fifth};
        emit(powers[static_cast<std::size_t>(exponent.number) - 2]);
    }
    replaceTop(1, {});
    return true;
}

void NumericCompiler::twoCells(Operator operation, const Operand& left, const Operand& right) {
    spill();
    const double* const a = cellOf(left);
    const double* const b = cellOf(right);
    switch (operation) {
        case Operator::Multiply:
            return emit(NumericOp::MultiplyCells, a, b);
        case Operator::Divide:
            return emit(NumericOp::DivideCells, a, b);
        case Operator::Subtract:
            return emit(NumericOp::SubtractCells, a, b);
        default:
            return emit(NumericOp::AddCells, a, b);
    }
}

void NumericCompiler::withAccumulator(Operator operation, const Operand& left, const Operand& right) {
    const bool leftInCell = isCell(left);
    const double* const cell = cellOf(leftInCell ? left : right);
    NumericInstruction& last = made_.code_.back();
    if (operation == Operator::Multiply && last.op == NumericOp::SquareCell) {
        last = {NumericOp::ScaledSquare, cell, last.a, {nullptr}};
        return;
    }
    if (operation == Operator::Add && last.op == NumericOp::MultiplyCells) {
        last.op = NumericOp::LinearCells;
        last.c = cell;
        return;
    }
    switch (operation) {
        case Operator::Multiply:
            return emit(NumericOp::Multiply, cell);
        case Operator::Divide:
            return emit(leftInCell ? NumericOp::DivideInto : NumericOp::Divide, cell);
        case Operator::Subtract:
            return emit(leftInCell ? NumericOp::SubtractFrom : NumericOp::Subtract, cell);
        default:
            return emit(NumericOp::Add, cell);
    }
}

void NumericCompiler::callBinary(Binary function) {
    spill();
    const double* const a = inMemory(waiting_.size() - 2);
    const double* const b = inMemory(waiting_.size() - 1);
    emit(NumericOp::CallBinary, a, b);
    made_.code_.back().binary = function;
    replaceTop(2, {});
}

bool NumericCode::compile(const Syntax& syntax, Globals& globals) {
    NumericCompiler compiler(syntax, globals);
    if (!compiler.compile()) return false;
    *this = compiler.take();
    return true;
}

}  // namespace zg::script
