#include <sys/stat.h>

#include <csignal>
#include <cstdlib>

#include "tests/support/System.h"

bool makePipe(const std::string& path) { return mkfifo(path.c_str(), 0600) == 0; }

void setEnvironment(const char* name, const char* value) { setenv(name, value, 1); }

void makeExecutable(const std::string& path) { chmod(path.c_str(), 0700); }

/// A sanitizer has a handler of its own.
void crashNow() {
    std::signal(SIGSEGV, SIG_DFL);
    std::raise(SIGSEGV);
    std::abort();
}
