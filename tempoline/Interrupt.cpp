#include "tempoline/Interrupt.h"

#include <atomic>
#include <csignal>

#include "tempoline/Failure.h"

namespace zg::tempoline {

namespace {

std::atomic<bool> interrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void noteInterrupt(int) { interrupted = true; }

}  // namespace

void catchInterrupts() {
    struct sigaction action = {};
    action.sa_handler = noteInterrupt;  // without SA_RESTART, so that a read that waits for a pipe returns
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    struct sigaction former = {};
    if (sigaction(SIGHUP, nullptr, &former) == 0 && former.sa_handler != SIG_IGN)  // nohup ignores it
        sigaction(SIGHUP, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);  // exceeding the file size limit becomes a write error
}

void throwIfInterrupted() {
    if (interrupted) throw Failure(ExitStatus::Interrupted, "interrupted");
}

void setInterrupted(bool wish) { interrupted = wish; }

}  // namespace zg::tempoline
