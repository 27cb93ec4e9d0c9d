#pragma once

// The output of the parser. An expression is a sequence of nodes in the order in which a stack machine
// executes them, operands before their operator, so that no walk over it needs recursion.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "graph/script/Operators.h"
#include "graph/script/Value.h"

namespace zg::script {

enum class NodeKind : std::uint8_t {
    Constant,  ///< index: constant
    Name,      ///< index: name
    Index,     ///< index: name; takes its arguments: an element, or a call
    Member,    ///< index: name; takes an object and its arguments
    Unary,     ///< takes one value
    Binary,    ///< takes two values
};

struct Node {
    NodeKind kind = NodeKind::Constant;
    Operator operation = Operator::Add;
    std::uint8_t arguments = 0;
    /// Whether the node is a whole argument of a call and may be passed by reference.
    bool asReference = false;
    std::uint32_t index = 0;
    std::uint32_t offset = 0;  ///< in the text
};

/// A sequence of nodes; empty if nothing was written.
struct Expression {
    std::uint32_t first = 0;
    std::uint32_t end = 0;

    bool isEmpty() const { return first == end; }
};

enum class StatementKind : std::uint8_t {
    Assign,        ///< name (place) = value
    AssignSet,     ///< the same for objects
    AssignMember,  ///< place . name = value
    Call,          ///< place is a call node whose result is dropped
    If,            ///< branches; the last one without a condition is Else
    Select,        ///< value; branches with lists
    For,           ///< name = place To value Step step
    Do,            ///< value is the condition
    While,
    Exit,
};

enum class LoopTest : std::uint8_t { None, WhileBefore, UntilBefore, WhileAfter, UntilAfter };
enum class ExitKind : std::uint8_t { For, Do, Sub, Function };

struct Statement;
using Block = std::vector<Statement>;

struct Branch;

struct Statement {
    StatementKind kind = StatementKind::Call;
    LoopTest test = LoopTest::None;
    ExitKind exit = ExitKind::For;
    std::uint8_t arguments = 0;
    std::uint32_t name = 0;
    std::uint32_t offset = 0;
    Expression place;
    Expression value;
    Expression step;
    std::vector<Branch> branches;
    Block body;
};

struct Branch {
    std::vector<Expression> conditions;
    Block body;
};

/// A name declared by Dim or Const.
struct Declaration {
    std::uint32_t name = 0;
    std::uint32_t offset = 0;
    bool isArray = false;
    bool isConstant = false;
    std::uint32_t constant = 0;              ///< its value, of a constant
    std::vector<std::uint32_t> upperBounds;  ///< of an array, from 0
};

struct Parameter {
    std::uint32_t name = 0;
    std::uint32_t offset = 0;
    bool byReference = true;
};

struct ProcedureSyntax {
    std::uint32_t name = 0;
    std::uint32_t offset = 0;
    bool isFunction = false;
    std::vector<Parameter> parameters;
    std::vector<Declaration> declarations;
    Block body;
};

struct Syntax {
    std::vector<Node> nodes;
    std::vector<std::string> names;  ///< in lower case, without duplicates
    std::vector<Value> constants;
    bool optionExplicit = false;
    std::vector<Declaration> declarations;
    Block body;
    std::vector<ProcedureSyntax> procedures;
    Expression expression;  ///< if the text is one
};

}  // namespace zg::script
