#include "graph/control/SweepWatch.h"

#include <utility>

#include "base/AtEnd.h"
#include "graph/script/ScriptError.h"

namespace zg {

namespace {

constexpr int outOfTime = static_cast<int>(ScriptErrorNumber::OutOfTime);
constexpr std::size_t longestShown = 200;

/// The formula in the form for an error message.
std::string quoted(const std::string& formula) {
    if (formula.size() <= longestShown) return "'" + formula + "'";
    std::size_t end = longestShown;
    while (end > 0 && (static_cast<unsigned char>(formula[end]) & 0xC0) == 0x80) --end;  // within a character
    return "'" + formula.substr(0, end) + "...'";
}

}  // namespace

SweepWatch::SweepWatch(ScriptEngine::Clock clock, Serve serve, std::optional<std::int64_t> limit)
    : clock_(std::move(clock)),
      serve_(std::move(serve)),
      limit_(limit),
      begin_(clock_()),
      next_(begin_ + patience) {}

void SweepWatch::act() {
    const std::int64_t now = clock_();
    if (limit_ && now - begin_ >= *limit_)
        throw RunTimeError(outOfTime, std::string(errorDescription(ScriptErrorNumber::OutOfTime)) +
                                          ": more than " + std::to_string(*limit_ / 1000) +
                                          " seconds for one curve");
    if (serve_ && !serve_()) throw SweepStopped{};
    const std::int64_t after = clock_();
    begin_ += after - now;
    next_ = after + patience;
}

void sweepUnderWatch(ScriptEngine& engine, SweepWatch& watch, const std::string& formula,
                     const std::function<void()>& sweep) {
    const AtEnd unwatched([&engine] { engine.whileRunning({}); });
    engine.whileRunning([&watch] { watch.lookNow(); });
    try {
        sweep();
    } catch (RunTimeError& error) {
        if (error.number == outOfTime) error.description += ": " + quoted(formula);
        throw;
    }
}

}  // namespace zg
