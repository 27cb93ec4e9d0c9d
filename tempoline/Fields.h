#pragma once

// Lines cut into fields at blanks or commas, and fields as numbers.

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace zg::tempoline {

inline bool isBlank(char c) { return c == ' ' || c == '\t'; }

/// Cuts at runs of blanks and tabs; stops when the places are filled. The number of fields found.
std::size_t splitBlanks(std::string_view line, std::span<std::string_view> fields);

/// Cuts at each comma; fields keep their blanks. Stops when the places are filled.
std::size_t splitCommas(std::string_view line, std::span<std::string_view> fields);

/// Without blanks and tabs at both ends.
std::string_view stripped(std::string_view text);

/// The whole field as a number; not-a-number for the marks of a missing value (empty, "nan", "inf",
/// asterisks), nothing for any other text.
std::optional<double> valueOf(std::string_view field);

/// The whole field as a whole number within the width of int: "7", "+7", "-7", and "7.", "7.0" as other
/// programs print it.
std::optional<int> wholeOf(std::string_view field);

}  // namespace zg::tempoline
