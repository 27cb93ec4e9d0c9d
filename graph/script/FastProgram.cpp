#include "graph/script/FastProgram.h"

#include <cmath>
#include <string_view>

#include "base/MathLibrary.h"
#include "graph/script/Functions.h"

namespace zg {

namespace {

constexpr double largestWholePower = 16;

/// Repeated squaring: for the small powers of formulas its few roundings stay within those of the general
/// power.
double wholePower(double base, std::int32_t exponent) {
    double result = exponent % 2 == 1 ? base : 1;
    while ((exponent /= 2) > 0) {
        base *= base;
        if (exponent % 2 == 1) result *= base;
    }
    return result;
}

/// The operations of MathLib of one argument that cannot fail, and the plain functions behind them.
struct MathFunction {
    std::string_view name;
    double (*function)(double);
};
constexpr MathFunction mathFunctions[] = {
    {"area", MathLibrary::Area},       {"circumference", MathLibrary::Circumference},
    {"cot", MathLibrary::Cot},         {"csc", MathLibrary::Csc},
    {"degrees", MathLibrary::Degrees}, {"diameter", MathLibrary::Diameter},
    {"radians", MathLibrary::Radians}, {"sec", MathLibrary::Sec}};

}  // namespace

std::optional<FastProgram> FastProgram::of(const Chunk& chunk) {
    FastProgram program;
    if (!program.translate(chunk)) return std::nullopt;
    program.shape_ = program.shapeOfSteps();
    return program;
}

bool FastProgram::translate(const Chunk& chunk) {
    for (const Instruction& instruction : chunk.code)
        if (instruction.op != Op::Return && !translate(instruction, chunk)) return false;
    return starts_.size() == 1;
}

bool FastProgram::push(Step step) {
    starts_.push_back(steps_.size());
    steps_.push_back(step);
    return starts_.size() <= deepestStack;
}

bool FastProgram::pushVariable(std::int32_t symbol) {
    std::size_t index = 0;
    while (index < variables_.size() && variables_[index] != symbol) ++index;
    if (index == variables_.size()) variables_.push_back(symbol);
    return index < mostVariables && push({Code::Variable, static_cast<std::int32_t>(index)});
}

bool FastProgram::translate(const Instruction& instruction, const Chunk& chunk) {
    switch (instruction.op) {
        case Op::Constant: {
            const Value& value = chunk.constants[static_cast<std::size_t>(instruction.a)];
            if (value.kind == Kind::String || value.kind == Kind::Null || value.kind == Kind::Single)
                return false;
            return push({Code::Constant, 0, value.number});
        }
        case Op::LoadGlobal:
            return pushVariable(instruction.a);
        case Op::Plus:
            return true;
        case Op::Negate:
            steps_.push_back({Code::Negate});
            return true;
        case Op::Binary:
            return translateOperator(static_cast<Operator>(instruction.a));
        case Op::Builtin:
            return translateBuiltin(instruction.a);
        case Op::Member:
            return translateMember(instruction.a);
        default:
            return false;
    }
}

bool FastProgram::translateOperator(Operator operation) {
    const std::size_t right = starts_.back();
    starts_.pop_back();
    const std::size_t left = starts_.back();
    const bool singleRight = steps_.size() == right + 1;
    if (singleRight && steps_[right].code == Code::Constant && withConstantRight(operation, steps_[right].k))
        return true;
    if (right == left + 1 && steps_[left].code == Code::Constant &&
        withConstantLeft(operation, steps_[left].k)) {
        steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(left));
        return true;
    }
    if (singleRight && steps_[right].code == Code::Variable && withVariableRight(operation, steps_[right].a))
        return true;
    switch (operation) {
        case Operator::Add:
            steps_.push_back({Code::Add});
            return true;
        case Operator::Subtract:
            steps_.push_back({Code::Subtract});
            return true;
        case Operator::Multiply:
            if (singleRight && steps_[right].code == Code::VariablePlus)
                steps_[right].code = Code::TimesVariablePlus;
            else
                steps_.push_back({Code::Multiply});
            return true;
        case Operator::Divide:
            steps_.push_back({Code::Divide});
            return true;
        case Operator::Power:
            steps_.push_back({Code::Power});
            return true;
        default:
            return false;
    }
}

/// "x + 2", "x * 2", "x / 2", "x ^ 2": the last step, the constant, becomes the operation.
bool FastProgram::withConstantRight(Operator operation, double k) {
    const std::size_t count = steps_.size();
    const bool onVariable =
        count >= 2 && steps_[count - 2].code == Code::Variable && starts_.back() == count - 2;
    switch (operation) {
        case Operator::Add:
        case Operator::Subtract:
        case Operator::Multiply: {
            const double value = operation == Operator::Subtract ? -k : k;
            const bool times = operation == Operator::Multiply;
            steps_.pop_back();
            if (onVariable)
                steps_.back() = {times ? Code::VariableTimes : Code::VariablePlus, steps_.back().a, value};
            else
                steps_.push_back({times ? Code::TimesConstant : Code::AddConstant, 0, value});
            return true;
        }
        case Operator::Divide:
            if (k == 0) return false;
            steps_.back() = {Code::DivideByConstant, 0, k};
            return true;
        case Operator::Power:
            if (k < 1 || k > largestWholePower || k != std::floor(k)) return false;
            if (onVariable && k == 2) {
                steps_.pop_back();
                steps_.back().code = Code::VariableSquare;
                return true;
            }
            steps_.back() = {k == 2 ? Code::Square : Code::WholePower, static_cast<std::int32_t>(k)};
            return true;
        default:
            return false;
    }
}

/// "2 + x", "2 * x", "2 - x", "2 / x": the operation follows the right side and the constant before it goes.
bool FastProgram::withConstantLeft(Operator operation, double k) {
    switch (operation) {
        case Operator::Add:
            steps_.push_back({Code::AddConstant, 0, k});
            return true;
        case Operator::Subtract:
            steps_.push_back({Code::ConstantMinus, 0, k});
            return true;
        case Operator::Multiply:
            if (steps_.back().code == Code::Variable && starts_.back() == steps_.size() - 2)
                steps_.back() = {Code::VariableTimes, steps_.back().a, k};
            else
                steps_.push_back({Code::TimesConstant, 0, k});
            return true;
        case Operator::Divide:
            steps_.push_back({Code::ConstantOver, 0, k});
            return true;
        default:
            return false;
    }
}

bool FastProgram::withVariableRight(Operator operation, std::int32_t variable) {
    switch (operation) {
        case Operator::Add:
            steps_.back() = {Code::AddVariable, variable};
            return true;
        case Operator::Subtract:
            steps_.back() = {Code::SubtractVariable, variable};
            return true;
        case Operator::Multiply: {
            steps_.pop_back();
            const Step& left = steps_.back();
            const bool squared =
                left.code == Code::Variable && left.a == variable && starts_.back() == steps_.size() - 1;
            if (squared)
                steps_.back().code = Code::VariableSquare;
            else
                steps_.push_back({Code::TimesVariable, variable});
            return true;
        }
        default:
            return false;
    }
}

bool FastProgram::translateBuiltin(std::int32_t function) {
    struct Row {
        std::string_view name;
        Code code;
    };
    constexpr Row rows[] = {{"abs", Code::Abs}, {"atn", Code::Atn}, {"cos", Code::Cos}, {"exp", Code::Exp},
                            {"int", Code::Int}, {"fix", Code::Fix}, {"log", Code::Log}, {"sgn", Code::Sgn},
                            {"sin", Code::Sin}, {"sqr", Code::Sqr}, {"tan", Code::Tan}};
    const std::string_view name = builtinFunctions()[static_cast<std::size_t>(function)].name;
    if (steps_.empty()) return false;
    Step& last = steps_.back();
    const bool ofVariable = last.code == Code::Variable || last.code == Code::VariableTimes;
    if (ofVariable && (name == "sin" || name == "cos")) {
        const double factor = last.code == Code::Variable ? 1 : last.k;
        last = {name == "sin" ? Code::SinOfVariable : Code::CosOfVariable, last.a, factor};
        return true;
    }
    for (const Row& row : rows)
        if (row.name == name) {
            steps_.push_back({row.code});
            return true;
        }
    return false;
}

bool FastProgram::translateMember(std::int32_t member) {
    const std::string_view name = mathLibMembers()[static_cast<std::size_t>(member)].name;
    if (name == "pi") return push({Code::Constant, 0, MathLibrary::Pi()});
    if (name == "pow" || name == "radius") {
        starts_.pop_back();
        steps_.push_back({name == "pow" ? Code::MathPower : Code::MathRadius});
        return true;
    }
    for (std::size_t i = 0; i < std::size(mathFunctions); ++i)
        if (mathFunctions[i].name == name) {
            steps_.push_back({Code::Function, static_cast<std::int32_t>(i)});
            return true;
        }
    return false;
}

FastProgram::Shape FastProgram::shapeOfSteps() const {
    if (steps_.size() == 1 && steps_[0].code == Code::Constant) return Shape::Constant;
    if (steps_.size() == 1 && steps_[0].code == Code::Variable) return Shape::Variable;
    if (steps_.size() == 1 && steps_[0].code == Code::VariableSquare) return Shape::Square;
    if (steps_.size() == 1 && steps_[0].code == Code::SinOfVariable) return Shape::Sine;
    return Shape::General;
}

bool FastProgram::runSteps(const SymbolTable& symbols, double& result) const {
    double variables[mostVariables];
    for (std::size_t i = 0; i < variables_.size(); ++i) {
        const Value& value = symbols[variables_[i]].value;
        if (!isPlainNumber(value.kind)) return false;
        variables[i] = value.number;
    }
    return evaluate(variables, result);
}

bool FastProgram::evaluate(const double* variables, double& result) const {
    double stack[deepestStack + 1];
    double* below = stack;  // the values under the top one
    double top = 0;
    for (const Step& step : steps_) {
        switch (step.code) {
            case Code::Constant:
                *below++ = top;
                top = step.k;
                break;
            case Code::Variable:
                *below++ = top;
                top = variables[step.a];
                break;
            case Code::VariableTimes:
                *below++ = top;
                top = variables[step.a] * step.k;
                break;
            case Code::VariablePlus:
                *below++ = top;
                top = variables[step.a] + step.k;
                break;
            case Code::VariableSquare:
                *below++ = top;
                top = variables[step.a] * variables[step.a];
                break;
            case Code::SinOfVariable:
                *below++ = top;
                top = std::sin(variables[step.a] * step.k);
                break;
            case Code::CosOfVariable:
                *below++ = top;
                top = std::cos(variables[step.a] * step.k);
                break;
            case Code::AddVariable:
                top += variables[step.a];
                break;
            case Code::SubtractVariable:
                top -= variables[step.a];
                break;
            case Code::TimesVariable:
                top *= variables[step.a];
                break;
            case Code::TimesVariablePlus:
                top *= variables[step.a] + step.k;
                break;
            case Code::ConstantMinus:
                top = step.k - top;
                break;
            case Code::DivideByConstant:
                top /= step.k;
                break;
            case Code::ConstantOver:
                if (top == 0 || !std::isfinite(top)) return false;
                top = step.k / top;
                break;
            case Code::Square:
                top *= top;
                break;
            case Code::Negate:
                top = 0 - top;
                break;
            case Code::Add:
                top = *--below + top;
                break;
            case Code::Subtract:
                top = *--below - top;
                break;
            case Code::Multiply:
                top = *--below * top;
                break;
            case Code::Divide:
                if (top == 0 || !std::isfinite(top)) return false;
                top = *--below / top;
                break;
            case Code::Power:
                --below;
                if (!std::isfinite(top) || !std::isfinite(*below) || *below <= 0) return false;
                top = std::pow(*below, top);
                break;
            case Code::AddConstant:
                top += step.k;
                break;
            case Code::TimesConstant:
                top *= step.k;
                break;
            case Code::WholePower:
                top = wholePower(top, step.a);
                break;
            case Code::Abs:
                top = std::abs(top);
                break;
            case Code::Atn:
                if (!std::isfinite(top)) return false;
                top = std::atan(top);
                break;
            case Code::Cos:
                top = std::cos(top);
                break;
            case Code::Exp:
                if (!std::isfinite(top)) return false;
                top = std::exp(top);
                break;
            case Code::Int:
                top = std::floor(top);
                break;
            case Code::Fix:
                top = std::trunc(top);
                break;
            case Code::Log:
                if (!(top > 0)) return false;
                top = std::log(top);
                break;
            case Code::Sgn:
                if (!std::isfinite(top)) return false;
                top = top > 0 ? 1 : (top < 0 ? -1 : 0);
                break;
            case Code::Sin:
                top = std::sin(top);
                break;
            case Code::Sqr:
                if (!(top >= 0)) return false;
                top = std::sqrt(top);
                break;
            case Code::Tan:
                top = std::tan(top);
                break;
            case Code::MathPower:
                --below;
                if (!(*below > 0) || !std::isfinite(*below) || !std::isfinite(top)) return false;
                top = std::exp(top * std::log(*below));
                break;
            case Code::MathRadius:
                --below;
                top = MathLibrary::Radius(*below, top);
                break;
            case Code::Function:
                if (!std::isfinite(top)) return false;
                top = mathFunctions[step.a].function(top);
                break;
        }
    }
    result = top;
    return std::isfinite(top);
}

}  // namespace zg
