#include "graph/script/Compiler.h"

#include <utility>

#include "graph/script/CodeBuilder.h"
#include "graph/script/Parser.h"

namespace zg::script {

namespace {

/// Compiles the statements of one piece of code.
class StatementCompiler {
 public:
    StatementCompiler(UnitContext& context, CodeBuilder& builder) : context_(context), code_(builder) {}

    void block(const Block& statements) {
        for (const Statement& each : statements) statement(each);
    }
    /// Creates the arrays and constants of a procedure or, with global places, of a text.
    void declare(const Declaration& declaration, const Place& place);

 private:
    struct Loop {
        ExitKind exit;
        std::vector<std::size_t> jumps;
    };

    void statement(const Statement& each);
    void assign(const Statement& each);
    void assignElement(const Statement& each);
    void call(const Statement& each);
    void ifStatement(const Statement& each);
    void select(const Statement& each);
    void forLoop(const Statement& each);
    void loop(const Statement& each);
    void exit(const Statement& each);
    void landAll(const std::vector<std::size_t>& jumps) {
        for (const std::size_t jump : jumps) code_.land(jump);
    }
    void loadTemporary(std::uint16_t temporary, std::uint32_t offset) {
        code_.emitPlace(Op::Load, 1, Place{.local = temporary}, offset);
    }
    void storeTemporary(std::uint16_t temporary, std::uint32_t offset) {
        code_.emitPlace(Op::Store, -1, Place{.local = temporary}, offset);
    }
    /// The position in the text of the first value of an expression.
    std::uint32_t offsetOf(Expression range) const { return context_.syntax.nodes[range.first].offset; }

    UnitContext& context_;
    CodeBuilder& code_;
    std::vector<Loop> loops_;
};

void StatementCompiler::declare(const Declaration& declaration, const Place& place) {
    if (declaration.isConstant) {
        code_.emit(Op::Constant, 1, declaration.offset, 0, declaration.constant);
        code_.emitPlace(Op::Store, -1, place, declaration.offset);
    } else if (declaration.isArray) {
        const auto dimensions = static_cast<std::uint8_t>(declaration.upperBounds.size());
        for (const std::uint32_t bound : declaration.upperBounds)
            code_.pushConstant({ValueType::Long, static_cast<double>(bound)}, declaration.offset);
        code_.emitPlace(Op::MakeArray, -dimensions, place, declaration.offset, dimensions);
    }
}

void StatementCompiler::statement(const Statement& each) {
    switch (each.kind) {
        case StatementKind::Assign:
        case StatementKind::AssignSet:
            return assign(each);
        case StatementKind::AssignMember:
            code_.expression(each.place);
            code_.expression(each.value);
            return code_.emit(Op::AssignMember, -2, each.offset);
        case StatementKind::Call:
            return call(each);
        case StatementKind::If:
            return ifStatement(each);
        case StatementKind::Select:
            return select(each);
        case StatementKind::For:
            return forLoop(each);
        case StatementKind::Do:
        case StatementKind::While:
            return loop(each);
        case StatementKind::Exit:
            return exit(each);
    }
}

void StatementCompiler::assign(const Statement& each) {
    if (!each.place.isEmpty()) return assignElement(each);
    code_.expression(each.value);
    const Op op = each.kind == StatementKind::AssignSet ? Op::StoreObject : Op::Store;
    code_.store(code_.scope().find(each.name, each.offset), each.offset, op);
}

void StatementCompiler::assignElement(const Statement& each) {
    code_.expression(each.place);
    code_.expression(each.value);
    const Place place = code_.scope().find(each.name, each.offset);
    if (place.function || place.isUndefined || place.isLocalConstant) {
        code_.store(place, each.offset);
        for (int i = 0; i < each.arguments; ++i) code_.emit(Op::Pop, -1, each.offset);
        return;
    }
    code_.emitPlace(Op::StoreElement, -1 - each.arguments, place, each.offset, each.arguments);
}

void StatementCompiler::call(const Statement& each) {
    code_.expression(each.place);
    code_.dropResult(each.offset);
}

void StatementCompiler::ifStatement(const Statement& each) {
    std::vector<std::size_t> ends;
    for (const Branch& branch : each.branches) {
        if (branch.conditions.empty()) {
            block(branch.body);
            break;
        }
        code_.expression(branch.conditions.front());
        const std::size_t over = code_.jump(Op::JumpIfFalse, offsetOf(branch.conditions.front()));
        block(branch.body);
        if (&branch != &each.branches.back()) ends.push_back(code_.jump(Op::Jump, each.offset));
        code_.land(over);
    }
    landAll(ends);
}

void StatementCompiler::select(const Statement& each) {
    const std::uint16_t chosen = code_.scope().takeTemporary(each.offset);
    code_.expression(each.value);
    storeTemporary(chosen, offsetOf(each.value));
    std::vector<std::size_t> ends;
    for (const Branch& branch : each.branches) {
        std::vector<std::size_t> matches;
        for (const Expression& value : branch.conditions) {
            loadTemporary(chosen, offsetOf(value));
            code_.expression(value);
            code_.emit(Op::Binary, -1, offsetOf(value), static_cast<std::uint8_t>(Operator::Equal));
            matches.push_back(code_.jump(Op::JumpIfTrue, offsetOf(value)));
        }
        const bool isElse = branch.conditions.empty();
        const std::size_t over = isElse ? 0 : code_.jump(Op::Jump, each.offset);
        landAll(matches);
        block(branch.body);
        if (isElse) break;
        ends.push_back(code_.jump(Op::Jump, each.offset));
        code_.land(over);
    }
    landAll(ends);
    code_.scope().giveBack(chosen);
}

/// The limit and the step are evaluated once, before the first iteration.
void StatementCompiler::forLoop(const Statement& each) {
    const std::uint16_t limit = code_.scope().takeTemporary(each.offset);
    const std::uint16_t step = code_.scope().takeTemporary(each.offset);
    code_.expression(each.place);
    code_.emit(Op::ToNumber, 0, offsetOf(each.place));
    code_.expression(each.value);
    code_.emit(Op::ToNumber, 0, offsetOf(each.value));
    storeTemporary(limit, offsetOf(each.value));
    if (each.step.isEmpty())
        code_.pushConstant({ValueType::Integer, 1.0}, each.offset);
    else
        code_.expression(each.step);
    const std::uint32_t stepOffset = each.step.isEmpty() ? each.offset : offsetOf(each.step);
    code_.emit(Op::ToNumber, 0, stepOffset);
    storeTemporary(step, stepOffset);
    const Place counter = code_.scope().find(each.name, each.offset);
    code_.store(counter, each.offset);

    const auto loadCounter = [&] {
        if (!counter.function && !counter.isUndefined)
            return code_.emitPlace(Op::Load, 1, counter, each.offset);
        code_.pushConstant({}, each.offset);
    };
    const std::uint32_t top = code_.here();
    loadCounter();
    loadTemporary(limit, each.offset);
    loadTemporary(step, each.offset);
    code_.emit(Op::ForCheck, -2, each.offset);
    const std::size_t over = code_.jump(Op::JumpIfFalse, each.offset);
    loops_.push_back({ExitKind::For, {}});
    block(each.body);
    loadCounter();
    loadTemporary(step, each.offset);
    code_.emit(Op::Binary, -1, each.offset, static_cast<std::uint8_t>(Operator::Add));
    code_.store(counter, each.offset);
    code_.jumpBack(Op::Jump, top, each.offset);
    code_.land(over);
    landAll(loops_.back().jumps);
    loops_.pop_back();
    code_.scope().giveBack(limit);
    code_.scope().giveBack(step);
}

void StatementCompiler::loop(const Statement& each) {
    const std::uint32_t top = code_.here();
    const bool before = each.test == LoopTest::WhileBefore || each.test == LoopTest::UntilBefore;
    const bool after = each.test == LoopTest::WhileAfter || each.test == LoopTest::UntilAfter;
    // An Exit Do inside While and Wend leaves the enclosing Do.
    loops_.push_back({each.kind == StatementKind::Do ? ExitKind::Do : ExitKind::Sub, {}});
    if (before) {
        code_.expression(each.value);
        const Op leave = each.test == LoopTest::WhileBefore ? Op::JumpIfFalse : Op::JumpIfTrue;
        loops_.back().jumps.push_back(code_.jump(leave, offsetOf(each.value)));
    }
    block(each.body);
    if (after) {
        code_.expression(each.value);
        const Op again = each.test == LoopTest::WhileAfter ? Op::JumpIfTrue : Op::JumpIfFalse;
        code_.jumpBack(again, top, offsetOf(each.value));
    } else {
        code_.jumpBack(Op::Jump, top, each.offset);
    }
    landAll(loops_.back().jumps);
    loops_.pop_back();
}

void StatementCompiler::exit(const Statement& each) {
    if (each.exit == ExitKind::Sub || each.exit == ExitKind::Function)
        return code_.emit(Op::Return, 0, each.offset);
    for (auto entry = loops_.rbegin(); entry != loops_.rend(); ++entry) {
        if (entry->exit != each.exit) continue;
        entry->jumps.push_back(code_.jump(Op::Jump, each.offset));
        return;
    }
}

/// Declares a name outside procedures; raises 1041 if the text has declared it before.
void declareGlobally(UnitContext& context, std::uint32_t name, std::uint32_t offset) {
    if (!context.declared.insert(name).second) context.fail(ScriptErrorNumber::NameRedefined, offset);
}

std::shared_ptr<Procedure> compileProcedure(UnitContext& context, const ProcedureSyntax& syntax) {
    auto made = std::make_shared<Procedure>();
    CodeBuilder builder(context);
    Scope& scope = builder.scope();
    scope.enterProcedure();
    for (const Parameter& parameter : syntax.parameters) {
        scope.declareLocal(parameter.name, parameter.offset, false);
        made->byReference.push_back(parameter.byReference);
    }
    if (syntax.isFunction) scope.declareResult(syntax.name, syntax.offset);
    StatementCompiler compiler(context, builder);
    for (const Declaration& declaration : syntax.declarations) {
        const std::uint16_t local =
            scope.declareLocal(declaration.name, declaration.offset, declaration.isConstant);
        compiler.declare(declaration, Place{.local = local});
    }
    compiler.block(syntax.body);
    builder.emit(Op::Return, 0, syntax.offset);
    made->block = builder.finish();
    made->block.parameters = syntax.parameters.size();
    made->isFunction = syntax.isFunction;
    return made;
}

UnitContext makeContext(std::string_view text, Globals& globals, Syntax& syntax) {
    auto unit = std::make_shared<CodeUnit>();
    unit->text = text;
    unit->constants = std::move(syntax.constants);
    return {globals, syntax, std::move(unit), {}};
}

CodeBlock compileMain(UnitContext& context, const Syntax& syntax,
                      std::vector<CompiledCode::Variable>& variables) {
    CodeBuilder builder(context);
    StatementCompiler compiler(context, builder);
    for (const Declaration& declaration : syntax.declarations) {
        const std::uint32_t global = context.globals.indexOf(syntax.names[declaration.name]);
        Value value;
        if (declaration.isConstant) value = context.unit->constants[declaration.constant];
        variables.push_back({global, declaration.isConstant, std::move(value)});
        if (declaration.isArray) compiler.declare(declaration, Place{.global = global});
    }
    compiler.block(syntax.body);
    builder.emit(Op::Return, 0, static_cast<std::uint32_t>(context.unit->text.size()));
    return builder.finish();
}

}  // namespace

bool isHostFunctionName(const std::string& name, Globals& globals) {
    return findFunction(name) && !globals[globals.indexOf(name)].declared;
}

CompiledCode compileCode(std::string_view text, Globals& globals) {
    Syntax syntax = parseCode(text);
    UnitContext context = makeContext(text, globals, syntax);
    for (const Declaration& declaration : syntax.declarations)
        declareGlobally(context, declaration.name, declaration.offset);
    for (const ProcedureSyntax& procedure : syntax.procedures)
        declareGlobally(context, procedure.name, procedure.offset);
    CompiledCode made;
    made.main = compileMain(context, syntax, made.variables);
    for (const ProcedureSyntax& procedure : syntax.procedures)
        made.procedures.push_back(
            {globals.indexOf(syntax.names[procedure.name]), compileProcedure(context, procedure)});
    return made;
}

CodeBlock compileExpression(std::string_view text, Syntax&& syntax, Globals& globals) {
    UnitContext context = makeContext(text, globals, syntax);
    CodeBuilder builder(context);
    if (syntax.expression.isEmpty())
        builder.pushConstant({}, 0);
    else
        builder.expression(syntax.expression);
    builder.emit(Op::Return, 0, static_cast<std::uint32_t>(text.size()));
    return builder.finish();
}

void install(const CompiledCode& code, Globals& globals) {
    for (const CompiledCode::Variable& variable : code.variables)
        globals[variable.global] = {variable.value, true, true, variable.isConstant};
    for (const CompiledCode::NamedProcedure& named : code.procedures)
        globals[named.global] = {Value(ValueType::Procedure, named.procedure), true, true, true};
}

}  // namespace zg::script
