#pragma once

#include <initializer_list>

#include "tests/support/TempDirectory.h"

/// A program that has not started: all process-wide state has its initial values, and its directory is empty.
/// The state is reset again at the end.
class FreshProgram {
 public:
    FreshProgram();
    ~FreshProgram();
    FreshProgram(const FreshProgram&) = delete;
    FreshProgram& operator=(const FreshProgram&) = delete;

    /// Copies delivered data files, such as "TimeZones.txt", into the program's directory.
    void deliver(std::initializer_list<const char*> names) const;

    TempDirectory directory;
};
