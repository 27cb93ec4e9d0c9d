#pragma once

// Text in files is in one of two encodings. It is kept as read; only text that is shown or typed is
// converted.

#include <string>
#include <string_view>

namespace zg {

bool isUtf8(std::string_view bytes);

/// The text as UTF-8: bytes that are valid UTF-8 are kept, all others are read as windows-1252.
std::string toUtf8(std::string_view bytes);

/// Typed text (UTF-8) as it is stored: windows-1252 if every character fits and the bytes read back as the
/// same text, otherwise UTF-8 unchanged.
std::string fromUtf8(std::string_view utf8);

}  // namespace zg
