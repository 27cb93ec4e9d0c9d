#pragma once

// What the sources for Windows share: names as its calls want them, and its errors as the C library numbers
// them.

#include <string>
#include <string_view>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace zg {

/// The name for a call: backslashes, and for a long path its whole form, which no length bounds.
std::wstring systemName(std::string_view name);

std::wstring wideUnits(std::string_view bytes);
std::string narrowUnits(std::wstring_view units);

/// The number for errno.
int errnoOf(DWORD error);

/// errno := what the last call left; gives false.
bool failWithLastError();

}  // namespace zg
