#include <cstdlib>

#include "tests/support/System.h"

bool makePipe(const std::string&) { return false; }

void setEnvironment(const char* name, const char* value) { _putenv_s(name, value); }

void makeExecutable(const std::string&) {}

/// The system knows such an end by its status.
void crashNow() {
    constexpr unsigned accessViolation = 0xC0000005U;
    std::_Exit(static_cast<int>(accessViolation));
}
