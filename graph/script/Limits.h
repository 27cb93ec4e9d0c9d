#pragma once

// The limits for every script. Each is far beyond what a formula needs.

#include <cstddef>
#include <cstdint>

namespace zg::script {

/// Characters of one text given as code or expression.
inline constexpr std::size_t maxProgramLength = 1'000'000;
/// Characters of one name.
inline constexpr std::size_t maxNameLength = 255;
/// Nesting of parentheses, operators waiting for their right side, and blocks.
inline constexpr int maxNesting = 500;
/// Arguments of a call, parameters of a procedure and dimensions of an array.
inline constexpr std::size_t maxArguments = 60;
/// Variables of one procedure.
inline constexpr std::size_t maxLocals = 2000;
/// Procedures running at the same time.
inline constexpr std::size_t maxCallDepth = 1000;
/// Values that wait on the machine's stack, variables of running procedures included.
inline constexpr std::size_t maxStackValues = 32'768;
/// Characters of one text value.
inline constexpr std::size_t maxTextLength = 65'536;
/// Characters of all text values alive at once.
inline constexpr std::size_t maxTextTotal = 16u << 20;
/// Elements of all arrays alive at once.
inline constexpr std::size_t maxArrayElements = 100'000;
/// Steps of the machine between readings of the clock. Work on long texts counts as several steps.
inline constexpr std::int64_t stepsBetweenClockChecks = 4096;

}  // namespace zg::script
