#pragma once

#include <QLineEdit>
#include <cstdint>
#include <functional>

namespace zg {

/// Takes a typed character and gives it back, or 0 to drop it.
using KeyFunction = std::function<std::int16_t(std::int16_t keyAscii)>;

/// The function, and besides no character above 127.
KeyFunction asciiOnly(KeyFunction function);

/// Lets only those characters be typed into the box that the function lets through. Text that is pasted does
/// not pass the keyboard and goes in as it is. The last function set counts.
void filterKeys(QLineEdit& box, KeyFunction function);

/// Enter in the field does what the Tab key does, and no more.
void enterIsTab(QWidget& field);

}  // namespace zg
