#pragma once

// The wish of the person to stop: a run looks at it between two blocks of its input and then leaves by way of
// a Failure, so that everything unfinished is removed.

namespace zg::tempoline {

/// SIGINT, SIGTERM and SIGHUP (where nohup has not turned it off) only note the wish from here on.
void catchInterrupts();

/// Throws where the wish has been noted.
void throwIfInterrupted();

/// As if a signal had come (true) or had not (false).
void setInterrupted(bool wish);

}  // namespace zg::tempoline
