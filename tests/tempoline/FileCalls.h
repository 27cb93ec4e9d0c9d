#pragma once

// The calls that change a directory: those of the processor's code in this program come through here, so that
// a test can step in before each of them, or be on a file system that does not tell letter cases apart.

#include <functional>

namespace FileCalls {

/// Before the call of that number, counted from 1, this happens.
void before(int number, std::function<void()> action);

/// Names differ in more than their letter case, as far as they are made anew and removed.
void beBlindToCase(bool blind);

}  // namespace FileCalls
