#pragma once

// Stopping on request: a run checks between blocks of its input whether it is to stop, and then throws a
// Failure, so that everything unfinished is removed.

namespace zg::tempoline {

/// From now on the requests to end that base/Console knows are only recorded.
void catchInterrupts();

/// Throws if a stop was requested.
void throwIfInterrupted();

/// Sets or clears the request, as a signal would.
void setInterrupted(bool wish);

}  // namespace zg::tempoline
