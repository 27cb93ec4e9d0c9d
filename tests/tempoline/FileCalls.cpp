#include "tests/tempoline/FileCalls.h"

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdarg>
#include <string>
#include <utility>

#include "base/Text.h"

namespace {

int left = 0;
std::function<void()> stepIn;
bool isBlind = false;

void step() {
    if (left > 0 && --left == 0) stepIn();
}

std::string seen(const char* path) { return isBlind ? zg::lcase(path) : path; }

}  // namespace

void FileCalls::before(int number, std::function<void()> action) {
    left = number;
    stepIn = std::move(action);
}
void FileCalls::beBlindToCase(bool blind) { isBlind = blind; }

// The linker redirects the calls here (--wrap).
extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_mkdir(const char* path, mode_t mode);
int __real_rmdir(const char* path);

int __wrap_open(const char* path, int flags, ...) {
    if ((flags & O_CREAT) == 0) return __real_open(path, flags);
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    step();
    return __real_open(seen(path).c_str(), flags, mode);
}

int __wrap_rename(const char* from, const char* to) {
    step();
    return __real_rename(from, to);
}

int __wrap_unlink(const char* path) {
    step();
    return __real_unlink(seen(path).c_str());
}

int __wrap_mkdir(const char* path, mode_t mode) {
    step();
    return __real_mkdir(path, mode);
}

int __wrap_rmdir(const char* path) {
    step();
    return __real_rmdir(path);
}
}
