#pragma once

#include <cstddef>
#include <cstdint>

/// What a target does with one input: 0, or it ends the program.
using FuzzFunction = int (*)(const std::uint8_t* data, std::size_t size);

/// Makes a target known under a name before main.
struct FuzzTarget {
    FuzzTarget(const char* name, FuzzFunction function);
};

/// Begins the function of a fuzz target: FUZZ_TARGET(frq) { ... data ... size ... return 0; }
#define FUZZ_TARGET(name)                                              \
    static int name##Fuzz(const std::uint8_t* data, std::size_t size); \
    static const FuzzTarget name##Target(#name, name##Fuzz);           \
    static int name##Fuzz(const std::uint8_t* data, std::size_t size)
