#pragma once

// Splits lines into fields at blanks or commas, and converts fields to numbers.

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace zg::tempoline {

inline bool isBlank(char c) { return c == ' ' || c == '\t'; }

/// Splits at runs of blanks and tabs; stops when the array is full. Returns the number of fields found.
std::size_t splitBlanks(std::string_view line, std::span<std::string_view> fields);

/// Splits at each comma; fields keep their blanks. Stops when the array is full.
std::size_t splitCommas(std::string_view line, std::span<std::string_view> fields);

/// Without blanks and tabs at both ends.
std::string_view stripped(std::string_view text);

/// The whole field as a number; not-a-number for the marks of a missing value (empty, "nan", "inf",
/// asterisks), nothing for any other text.
std::optional<double> valueOf(std::string_view field);

/// The whole field as a whole number within the range of int: "7", "+7", "-7", and also "7." and "7.0" as
/// other programs print it.
std::optional<int> wholeOf(std::string_view field);

}  // namespace zg::tempoline
