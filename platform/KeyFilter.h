#pragma once

#include <QLineEdit>
#include <cstdint>
#include <functional>

namespace zg {

/// Receives a typed character and returns it, or 0 to drop it.
using KeyFunction = std::function<std::int16_t(std::int16_t keyAscii)>;

/// The function, with all characters above 127 dropped as well.
KeyFunction asciiOnly(KeyFunction function);

/// Accepts only those typed characters that the function accepts. Pasted text does not come from the keyboard
/// and is not filtered. A later call replaces the function.
void filterKeys(QLineEdit& box, KeyFunction function);

/// Enter in the field does what the Tab key does, and nothing else.
void enterIsTab(QWidget& field);

}  // namespace zg
