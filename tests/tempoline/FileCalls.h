#pragma once

// The system calls that change a directory: those of the processor's code in this program pass through here,
// so that a test can intervene before each of them, or simulate a file system that ignores letter case.

#include <functional>

namespace FileCalls {

/// Called before the call of that number, counted from 1.
void before(int number, std::function<void()> action);

/// Simulates a file system that ignores letter case, when names are created or removed.
void beBlindToCase(bool blind);

}  // namespace FileCalls
