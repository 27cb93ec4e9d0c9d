#pragma once

// Keeps a long sweep of a curve from blocking the program: events are served meanwhile, and a sweep that
// nobody can stop has a time limit.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "graph/script/ScriptEngine.h"

namespace zg {

/// Thrown if the function that serves events ended a sweep; not an error.
struct SweepStopped {};

class SweepWatch {
 public:
    /// Milliseconds of work after which a sweep is ended.
    static constexpr std::int64_t usualLimit = 30'000;
    /// Milliseconds of work between calls that serve events: a shorter sweep serves none.
    static constexpr std::int64_t patience = 100;

    /// Serves events; returns false to end the sweep.
    using Serve = std::function<bool()>;

    /// Starts counting. Without a function that serves events only the limit applies; without a limit only
    /// that function can end the sweep.
    explicit SweepWatch(ScriptEngine::Clock clock, Serve serve = {},
                        std::optional<std::int64_t> limit = usualLimit);

    /// To be called while a script runs: reads the clock, and serves events or ends the sweep when it is
    /// time. Throws SweepStopped, and raises 32811 beyond the limit, which does not include the time for
    /// events.
    void lookNow() {
        const std::int64_t now = clock_();
        skipped_ = now == seen_ ? fastPoints : 0;
        seen_ = now;
        if (now >= next_) act();
    }

    /// The same for each point; if points follow each other quickly, only some calls read the clock.
    void look() {
        if (skipped_ > 0)
            --skipped_;
        else
            lookNow();
    }

 private:
    static constexpr int fastPoints = 15;
    void act();

    ScriptEngine::Clock clock_;
    Serve serve_;
    std::optional<std::int64_t> limit_;
    std::int64_t begin_;
    std::int64_t next_;
    std::int64_t seen_ = -1;
    int skipped_ = 0;
};

/// Runs a sweep, calling the watch at intervals while the engine runs a script of it. Exceptions reach the
/// caller; a time-out error then names the formula.
void sweepUnderWatch(ScriptEngine& engine, SweepWatch& watch, const std::string& formula,
                     const std::function<void()>& sweep);

}  // namespace zg
