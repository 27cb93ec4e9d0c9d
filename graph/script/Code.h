#pragma once

// The output of the compiler, which the machine runs.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "graph/script/HostFunctions.h"
#include "graph/script/Value.h"

namespace zg::script {

enum class Op : std::uint8_t {
    Constant,        ///< push constant `target`
    Load,            ///< push the value of a place; a function there is called
    Reference,       ///< push a reference to a place
    Store,           ///< pop into a place
    StoreObject,     ///< pop an object into a place
    StoreElement,    ///< pop a value, then indexes: into an array's element
    MakeArray,       ///< pop upper bounds: create an array in a place
    Index,           ///< pop arguments: push an element or a function's result
    IndexReference,  ///< the same, an element by reference
    CallProcedure,   ///< pop arguments, run a procedure, drop its result
    Member,          ///< pop arguments and an object: push the result of function `target`
    UnknownMember,   ///< pop arguments and an object: no such member
    AssignMember,    ///< pop a value and an object: members cannot be assigned
    HostFunction,    ///< pop arguments: push the result of function `target`
    Unary,           ///< the operator is `arguments`
    Binary,          ///< the operator is `arguments`
    ToNumber,        ///< make the top a number
    ForCheck,        ///< pop counter, limit and step: push whether the loop goes on
    Pop,
    Jump,         ///< to `target`
    JumpIfFalse,  ///< pop a condition
    JumpIfTrue,
    Raise,  ///< raise the error of number `target`
    Return,
};

inline constexpr std::uint16_t noLocal = 0xFFFF;
inline constexpr std::uint32_t noGlobal = 0xFFFFFFFF;

/// An operation and its place: a local variable, a global name, or both if the global one takes precedence as
/// soon as it exists.
struct Instruction {
    Op op = Op::Return;
    std::uint8_t arguments = 0;
    std::uint16_t local = noLocal;
    std::uint32_t target = noGlobal;  ///< the global name, or as the operation defines
};

/// What all pieces of code from one text share.
struct CodeUnit {
    std::string text;
    std::vector<Value> constants;
    std::vector<const HostFunction*> functions;
};

struct CodeBlock {
    std::shared_ptr<const CodeUnit> unit;
    std::vector<Instruction> code;
    std::vector<std::uint32_t> offsets;  ///< in the text, one per instruction
    std::size_t parameters = 0;
    std::size_t locals = 0;     ///< parameters included
    std::size_t stackNeed = 0;  ///< maximum number of values above the locals
};

struct Procedure : Payload {
    CodeBlock block;
    std::vector<bool> byReference;
    bool isFunction = false;  ///< its result is the local after the parameters
};

struct ArrayPayload : Payload {
    ArrayPayload(std::vector<std::uint32_t> upperBounds, std::shared_ptr<MemoryBudget> charged);
    ~ArrayPayload() override;

    std::vector<std::uint32_t> bounds;
    std::vector<Value> elements;
    std::shared_ptr<MemoryBudget> budget;
};

}  // namespace zg::script
