#pragma once

// What keeps a long sweep of a curve from holding the program: events are served meanwhile, and no sweep goes
// on for ever where nobody can stop it.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "graph/script/ScriptEngine.h"

namespace zg {

/// Thrown where a service of events ended a sweep: no error.
struct SweepStopped {};

class SweepWatch {
 public:
    /// Milliseconds of work after which a sweep is given up.
    static constexpr std::int64_t usualLimit = 30'000;
    /// Milliseconds of work from one service of events to the next: a sweep that is shorter serves none.
    static constexpr std::int64_t patience = 100;

    /// Serves events; false ends the sweep.
    using Serve = std::function<bool()>;

    /// Counts from here on. Without a service only the limit is watched; without a limit a service alone ends
    /// the sweep.
    explicit SweepWatch(ScriptEngine::Clock clock, Serve serve = {},
                        std::optional<std::int64_t> limit = usualLimit);

    /// Looks at the clock, and serves or ends the sweep when it is time to: while a script runs. Throws
    /// SweepStopped, and raises 32811 beyond the limit, to which services do not count.
    void lookNow() {
        const std::int64_t now = clock_();
        skipped_ = now == seen_ ? fastPoints : 0;
        seen_ = now;
        if (now >= next_) act();
    }

    /// The same for each point; of points that follow each other fast only some look.
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

/// Carries a sweep out, with a look at the watch now and then while the engine runs a script of it. What it
/// throws reaches the caller; an error of time then names the formula.
void sweepUnderWatch(ScriptEngine& engine, SweepWatch& watch, const std::string& formula,
                     const std::function<void()>& sweep);

}  // namespace zg
