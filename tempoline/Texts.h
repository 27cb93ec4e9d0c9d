#pragma once

// Numbers as the outputs print them, and the text of an output that several files share.

#include <cstdint>
#include <string>

namespace zg::tempoline {

/// At least one decimal: 10 is "10.0", 100.25 is "100.25".
std::string metresText(double metres);

/// Rounded to so many decimals, 0 to 9.
std::string fixedText(double value, int decimals);

/// As few decimals as read back as the same number: "-97.5", "40".
std::string shortText(double value);

/// A line of the listing: the value stands in a column of its own.
std::string entryLine(const std::string& name, const std::string& value);

/// Right-aligned in so many columns; longer texts stay.
std::string padded(std::string text, std::size_t width);
std::string padded(std::int64_t value, std::size_t width);

}  // namespace zg::tempoline
