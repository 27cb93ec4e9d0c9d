// Expressions: a rule of precedence for each operator, a prefix rule for each beginning.

#include <array>

#include "graph/script/Compiler.h"
#include "graph/script/Functions.h"
#include "graph/script/Nesting.h"

namespace zg {

namespace {

struct Infix {
    Token token;
    int precedence;
    Operator operation;
};

constexpr int notPrecedence = 6;
constexpr int minusPrecedence = 13;
constexpr std::size_t mostArguments = 60;

/// From the weakest binding to the strongest; "Not" stands at 6 and the sign at 13.
constexpr std::array infixes = {
    Infix{Token::Imp, 1, Operator::Imp},
    Infix{Token::Eqv, 2, Operator::Eqv},
    Infix{Token::Xor, 3, Operator::Xor},
    Infix{Token::Or, 4, Operator::Or},
    Infix{Token::And, 5, Operator::And},
    Infix{Token::Equal, 7, Operator::Equal},
    Infix{Token::NotEqual, 7, Operator::NotEqual},
    Infix{Token::Less, 7, Operator::Less},
    Infix{Token::Greater, 7, Operator::Greater},
    Infix{Token::LessOrEqual, 7, Operator::LessOrEqual},
    Infix{Token::GreaterOrEqual, 7, Operator::GreaterOrEqual},
    Infix{Token::Ampersand, 8, Operator::Concatenate},
    Infix{Token::Plus, 9, Operator::Add},
    Infix{Token::Minus, 9, Operator::Subtract},
    Infix{Token::Mod, 10, Operator::Modulo},
    Infix{Token::Backslash, 11, Operator::IntegerDivide},
    Infix{Token::Times, 12, Operator::Multiply},
    Infix{Token::Slash, 12, Operator::Divide},
    Infix{Token::Caret, 14, Operator::Power},
};

const Infix* infixOf(Token token) {
    for (const Infix& infix : infixes)
        if (infix.token == token) return &infix;
    return nullptr;
}

}  // namespace

void Compiler::precedence(int lowest) {
    const NestingGuard deeper(nesting_, lexer_);
    prefix();
    while (true) {
        const Infix* infix = infixOf(lexer_.token());
        if (infix == nullptr || infix->precedence < lowest) return;
        const ScriptPosition place = lexer_.position();
        lexer_.next();
        precedence(infix->precedence + 1);
        emitBinary(place, infix->operation);
    }
}

void Compiler::prefix() {
    const ScriptPosition place = lexer_.position();
    switch (lexer_.token()) {
        case Token::Number:
        case Token::Text:
            literal(lexer_.value());
            lexer_.next();
            return;
        case Token::True:
        case Token::False:
            literal(Value::ofBoolean(lexer_.token() == Token::True));
            lexer_.next();
            return;
        case Token::Empty:
            literal({});
            lexer_.next();
            return;
        case Token::Null:
            literal({Kind::Null, 0, {}});
            lexer_.next();
            return;
        case Token::Name:
            nameExpression();
            return;
        case Token::Open:
            lexer_.next();
            expression();
            expect(Token::Close, ScriptErrorNumber::ExpectedCloseParenthesis);
            return;
        case Token::Minus:
            lexer_.next();
            precedence(minusPrecedence);
            emitAt(place, Op::Negate);
            return;
        case Token::Plus:
            lexer_.next();
            precedence(minusPrecedence);
            emitAt(place, Op::Plus);
            return;
        case Token::Not:
            lexer_.next();
            precedence(notPrecedence);
            emitAt(place, Op::Not);
            return;
        default:
            lexer_.fail(ScriptErrorNumber::SyntaxError);
    }
}

void Compiler::literal(Value value) { emit(Op::Constant, constant(std::move(value))); }

void Compiler::nameExpression() {
    const ScriptPosition place = lexer_.position();
    const std::string name = takeName();
    if (lexer_.token() == Token::Dot) {
        if (name != settings_.mathObject || settings_.mathObject.empty())
            lexer_.fail(ScriptErrorNumber::ObjectRequired, place);
        memberExpression();
    } else if (lexer_.token() == Token::Open) {
        callExpression(name, place, false, true);
    } else {
        loadName(name, place);
    }
}

/// After the object's name: "." and the operation with its arguments.
void Compiler::memberExpression() {
    lexer_.next();
    const ScriptPosition place = lexer_.position();
    const std::string name = takeName();
    const int member = findFunction(mathLibMembers(), name);
    if (member < 0) lexer_.fail(ScriptErrorNumber::NoSuchMember, place);
    std::uint8_t count = 0;
    if (accept(Token::Open)) {
        count = arguments(nullptr);
        expect(Token::Close, ScriptErrorNumber::ExpectedCloseParenthesis);
    }
    const FunctionEntry& entry = mathLibMembers()[static_cast<std::size_t>(member)];
    if (count < entry.fewest || count > entry.most) lexer_.fail(ScriptErrorNumber::WrongArgumentCount, place);
    emitAt(place, Op::Member, member, count);
}

/// Arguments up to the closing parenthesis or the end of the statement; an argument that is a bare name notes
/// where it lives.
std::uint8_t Compiler::arguments(std::vector<CallTarget>* targets) {
    std::size_t count = 0;
    if (lexer_.token() == Token::Close) return 0;
    do {
        const bool bare = lexer_.token() == Token::Name;
        const std::size_t from = chunk_->code.size();
        expression();
        if (++count > mostArguments) lexer_.fail(ScriptErrorNumber::WrongArgumentCount);
        if (targets == nullptr) continue;
        CallTarget target;
        const Instruction& last = chunk_->code.back();
        if (bare && chunk_->code.size() == from + 1 &&
            (last.op == Op::LoadGlobal || last.op == Op::LoadLocal))
            target = {last.op == Op::LoadGlobal ? CallTarget::Place::Global : CallTarget::Place::Local,
                      last.a};
        targets->push_back(target);
    } while (accept(Token::Comma));
    return static_cast<std::uint8_t>(count);
}

void Compiler::callExpression(const std::string& name, ScriptPosition place, bool isStatement,
                              bool parenthesised) {
    CallSite site;
    if (parenthesised) {
        lexer_.next();
        arguments(&site.arguments);
        expect(Token::Close, ScriptErrorNumber::ExpectedCloseParenthesis);
    } else if (lexer_.token() == Token::Name || lexer_.token() == Token::Number ||
               lexer_.token() == Token::Text || lexer_.token() == Token::Minus ||
               lexer_.token() == Token::Not || lexer_.token() == Token::True ||
               lexer_.token() == Token::False || lexer_.token() == Token::Empty ||
               lexer_.token() == Token::Null) {
        arguments(&site.arguments);
    }
    const int builtin = isUserName(name) ? -1 : findFunction(builtinFunctions(), name);
    if (builtin >= 0) {
        const FunctionEntry& entry = builtinFunctions()[static_cast<std::size_t>(builtin)];
        const auto count = static_cast<std::uint8_t>(site.arguments.size());
        if (count < entry.fewest || count > entry.most)
            lexer_.fail(ScriptErrorNumber::WrongArgumentCount, place);
        emitAt(place, Op::Builtin, builtin, count);
        if (isStatement) emitAt(place, Op::Pop);
        return;
    }
    site.symbol = symbols_.intern(name);
    site.isStatement = isStatement;
    chunk_->calls.push_back(std::move(site));
    emitAt(place, Op::Call, static_cast<std::int32_t>(chunk_->calls.size()) - 1);
}

void Compiler::loadName(const std::string& name, ScriptPosition place) {
    if (const std::int32_t* slot = local(name)) {
        emitAt(place, Op::LoadLocal, *slot);
        return;
    }
    const int builtin = isUserName(name) ? -1 : findFunction(builtinFunctions(), name);
    if (builtin >= 0) {
        if (builtinFunctions()[static_cast<std::size_t>(builtin)].fewest > 0)
            lexer_.fail(ScriptErrorNumber::WrongArgumentCount, place);
        emitAt(place, Op::Builtin, builtin, 0);
        return;
    }
    emitAt(place, Op::LoadGlobal, symbols_.intern(name));
}

void Compiler::emitBinary(ScriptPosition place, Operator operation) {
    if (!fold(operation)) emitAt(place, Op::Binary, static_cast<std::int32_t>(operation));
}

/// Two constants under an operator are one constant, unless that is an error: it is raised when the place is
/// reached.
bool Compiler::fold(Operator operation) {
    std::vector<Instruction>& code = chunk_->code;
    if (code.size() < barrier_ + 2 || code[code.size() - 1].op != Op::Constant ||
        code[code.size() - 2].op != Op::Constant)
        return false;
    const std::int32_t right = code[code.size() - 1].a;
    const std::int32_t left = code[code.size() - 2].a;
    if (right != static_cast<std::int32_t>(chunk_->constants.size()) - 1 || left != right - 1) return false;
    try {
        Value result = applyOperator(operation, chunk_->constants[static_cast<std::size_t>(left)],
                                     chunk_->constants[static_cast<std::size_t>(right)]);
        chunk_->constants.pop_back();
        chunk_->constants.back() = std::move(result);
    } catch (const RunTimeError&) {
        return false;
    }
    code.pop_back();
    return true;
}

}  // namespace zg
