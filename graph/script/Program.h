#pragma once

// The compact form that scripts are compiled to: instructions of a stack machine with constants and places by
// number.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "graph/script/ScriptError.h"
#include "graph/script/Value.h"

namespace zg {

enum class Op : std::uint8_t {
    Constant,     ///< pushes constant a
    LoadGlobal,   ///< pushes symbol a: a variable, a constant, or the result of a function without arguments
    LoadLocal,    ///< pushes local a
    StoreGlobal,  ///< pops into symbol a
    StoreLocal,   ///< pops into local a
    DefineConstant,  ///< pops into symbol a, which is a constant from then on
    Pop,
    Negate,
    Not,
    Plus,         ///< checks that the value is a number
    Binary,       ///< pops two, pushes the result of operator a
    Jump,         ///< to instruction a
    JumpIfFalse,  ///< pops the condition
    JumpIfTrue,
    ForTest,  ///< pops variable, limit and step, pushes whether the loop goes on
    Builtin,  ///< calls function a of the table with count arguments
    Member,   ///< calls operation a of MathLib with count arguments
    Call,     ///< calls by call site a
    Return,
};

struct Instruction {
    Op op = Op::Return;
    std::uint8_t count = 0;
    std::int32_t a = 0;
    ScriptPosition position;
};

/// Where an argument came from, so that a procedure can change it: by reference means that the value comes
/// back.
struct CallTarget {
    enum class Place : std::uint8_t { None, Global, Local } place = Place::None;
    std::int32_t index = 0;
};

struct CallSite {
    std::int32_t symbol = 0;
    bool isStatement = false;  ///< the result is dropped, and a Sub may be called
    std::vector<CallTarget> arguments;
};

/// A run of instructions with all they refer to.
struct Chunk {
    std::vector<Instruction> code;
    std::vector<Value> constants;
    std::vector<CallSite> calls;
    std::int32_t locals = 0;  ///< of a procedure, parameters and result included; hidden ones of loops too
};

/// A Sub or Function. Local 0 of a Function is its result; parameters follow.
struct Procedure {
    std::string name;
    bool isFunction = false;
    std::vector<bool> byReference;  ///< for each parameter
    Chunk chunk;
};

/// What a name stands for among the globals.
struct Symbol {
    std::string name;
    Value value;
    bool declared = false;  ///< by Dim, Const, an assignment or a procedure
    bool isConstant = false;
    std::shared_ptr<const Procedure> procedure;
};

constexpr std::int32_t largestProgram = 4 * 1024 * 1024;  // instructions
constexpr std::size_t longestSource = 8U * 1024 * 1024;   // bytes

}  // namespace zg
