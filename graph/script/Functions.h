#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "graph/script/Value.h"

namespace zg {

/// The random numbers of an engine: 24 bits, the same sequence from the same seed.
struct RandomState {
    std::uint32_t bits = 0x50000;

    float next();
    void seed(double number);
};

using FunctionBody = Value (*)(std::span<Value> arguments, RandomState& random);

/// A function that scripts can call by name.
struct FunctionEntry {
    std::string_view name;  ///< in lower case
    std::uint8_t fewest = 0;
    std::uint8_t most = 0;
    FunctionBody body = nullptr;
};

/// The functions of the language, and the operations of MathLib.
std::span<const FunctionEntry> builtinFunctions();
std::span<const FunctionEntry> mathLibMembers();

/// Place in the table, -1 where there is none of that name (in lower case).
int findFunction(std::span<const FunctionEntry> table, std::string_view name);

}  // namespace zg
