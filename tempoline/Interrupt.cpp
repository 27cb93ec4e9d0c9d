#include "tempoline/Interrupt.h"

#include <atomic>

#include "base/Console.h"
#include "tempoline/Failure.h"

namespace zg::tempoline {

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void noteInterrupt() { interrupted = true; }

}  // namespace

void catchInterrupts() { catchStops(noteInterrupt); }

void throwIfInterrupted() {
    if (interrupted) throw Failure(ExitStatus::Interrupted, "interrupted");
}

void setInterrupted(bool wish) { interrupted = wish; }

}  // namespace zg::tempoline
