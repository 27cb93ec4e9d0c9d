#include <cstdlib>

#include "tests/support/System.h"

bool makePipe(const std::string&) { return false; }

void setEnvironment(const char* name, const char* value) { _putenv_s(name, value); }
