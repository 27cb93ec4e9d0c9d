#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include "base/Host.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "headers/HeaderSource.h"
#include "tests/support/DeafHost.h"

/// Creates a directory and makes it the program's own, with the input of readAsFile in it under these names.
inline void useAsApplicationDirectory(char* pattern, const std::string& file,
                                      std::initializer_list<const char*> names) {
    if (mkdtemp(pattern) == nullptr) std::abort();
    zg::applicationDirectory = pattern;
    for (const char* name : names)
        if (symlink(file.c_str(), zg::inApplicationDirectory(name).c_str()) != 0) std::abort();
}

/// Passes the bytes to the reader of a header. Any other error than a HeaderError that says something ends
/// the program.
template <typename Read>
void readHeader(const std::uint8_t* data, std::size_t size, Read read) {
    zg::HeaderSource source({reinterpret_cast<const char*>(data), size}, "input");
    try {
        read(source);
    } catch (const zg::HeaderError& error) {
        if (zg::messageOf(error).empty()) std::abort();
    }
}

/// Passes the bytes to the reader as an in-memory file.
template <typename Read>
void readAsFile(const std::uint8_t* data, std::size_t size, Read read) {
    static const int file = memfd_create("input", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size)) std::abort();
    DeafHost host;
    try {
        read(host, path);
    } catch (const zg::RunTimeError&) {
        return;  // an expected outcome
    }
}
