#pragma once

// What tests ask of the system beyond what the programs do.

#include <string>

/// A pipe with a name among the files; false on a system that has none.
bool makePipe(const std::string& path);

void setEnvironment(const char* name, const char* value);

/// On a system where a file needs a permission for it.
void makeExecutable(const std::string& path);

/// Ends this program as a fault in it would, but without a report of that.
[[noreturn]] void crashNow();
