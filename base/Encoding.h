#pragma once

// Texts of files are bytes of either of two encodings. They are kept as read; only what is shown, and what
// was typed, is converted.

#include <string>
#include <string_view>

namespace zg {

bool isUtf8(std::string_view bytes);

/// The text as UTF-8: bytes that are valid UTF-8 stay, others are read as windows-1252.
std::string toUtf8(std::string_view bytes);

/// Typed text (UTF-8) as it is stored: windows-1252 where every character fits and the bytes
/// read back as the same text, else the UTF-8 as it stands.
std::string fromUtf8(std::string_view utf8);

}  // namespace zg
