#include <sys/stat.h>

#include <cstdlib>

#include "tests/support/System.h"

bool makePipe(const std::string& path) { return mkfifo(path.c_str(), 0600) == 0; }

void setEnvironment(const char* name, const char* value) { setenv(name, value, 1); }
