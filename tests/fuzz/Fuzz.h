#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

/// Runs a target on one input and returns 0; on a defect it ends the program.
using FuzzFunction = int (*)(const std::uint8_t* data, std::size_t size);

/// All targets by name.
const std::map<std::string, FuzzFunction>& fuzzTargets();

/// Registers a target by name before main starts.
struct FuzzTarget {
    FuzzTarget(const char* name, FuzzFunction function);
};

/// Begins the function of a fuzz target: FUZZ_TARGET(frq) { ... data ... size ... return 0; }
#define FUZZ_TARGET(name)                                              \
    static int name##Fuzz(const std::uint8_t* data, std::size_t size); \
    static const FuzzTarget name##Target(#name, name##Fuzz);           \
    static int name##Fuzz(const std::uint8_t* data, std::size_t size)
