#pragma once

// Numbers as the outputs print them, and text that several output files share.

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace zg::tempoline {

/// Of the output files.
inline constexpr const char* lineEnd = "\r\n";

/// With at least one decimal: 10 is "10.0", 100.25 is "100.25".
std::string metresText(double metres);

/// Rounded to 0 to 9 decimals.
std::string fixedText(double value, int decimals);

/// The shortest decimal form that reads back as the same number: "-97.5", "40".
std::string shortText(double value);

/// A line of the listing, with the value in its own column.
std::string entryLine(const std::string& name, const std::string& value);

/// Right-aligned in that many columns; longer texts are not cut.
std::string padded(std::string text, std::size_t width);
std::string padded(std::int64_t value, std::size_t width);

template <std::size_t N>
bool isAmong(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace zg::tempoline
