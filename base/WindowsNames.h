#pragma once

// What the Windows sources share: names in the form for system calls, and errors in the numbers of the C
// library.

#include <string>
#include <string_view>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace zg {

/// The name for a call: with backslashes, and for a long path in the full form that has no length limit.
std::wstring systemName(std::string_view name);

std::wstring wideUnits(std::string_view bytes);
std::string narrowUnits(std::wstring_view units);

/// The errno for a system error.
int errnoOf(DWORD error);

/// Sets errno from the last call; returns false.
bool failWithLastError();

}  // namespace zg
