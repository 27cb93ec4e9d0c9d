#pragma once

// The lower bounds of the six wind speed classes: the rules of the class dialog without its window.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "settings/Settings.h"

namespace zg {

/// The row to mark and the message to show.
struct ClassFault {
    std::size_t row = 0;
    std::string message;
    bool operator==(const ClassFault&) const = default;
};

/// The rows when the dialog opens: the configuration file is read first.
ClassTexts loadWindClasses();

/// First check, over all rows: the first one without text.
std::optional<ClassFault> findEmptyClass(const ClassTexts& texts);

/// Second check: the first row that is above its next one (equal ones pass), or the first text that is not a
/// number, with the conversion's own message.
std::optional<ClassFault> findDisorderedClass(const ClassTexts& texts);

/// Accepts rows that have passed both checks: stores them trimmed, writes the configuration file and builds
/// WindClassString.
void acceptWindClasses(const ClassTexts& texts);

/// Joins WindClassMin into WindClassString.
void buildWindClassString();

/// A minimum as repeated at the end of the row above it: "1.8 m/s".
std::string windClassLabel(std::string_view text);

/// Key filter of the boxes: digits, ".", "-", control keys and the delete character (127) pass; everything
/// else gives 0, including Enter, which the dialog turns into a Tab.
std::int16_t KeyWindClass(std::int16_t keyAscii);

}  // namespace zg
