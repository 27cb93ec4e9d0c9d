#include "processing/ProcessorRun.h"

#include <algorithm>

#include "base/RunTimeError.h"
#include "processing/RunLock.h"
#include "processing/RunReasons.h"
#include "processing/Wait.h"

namespace zg {

namespace {

constexpr std::int64_t animationMs = 300;
constexpr std::int64_t sliceMs = 50;  // between checks whether the program is being closed

/// The user chose Cancel, or the program is being closed.
struct RunEnded {};

class Run {
 public:
    Run(Host& host, ProcessStarter& starter, const RunForm& form, RunHooks hooks)
        : host_(host), starter_(starter), form_(form), hooks_(std::move(hooks)) {}

    void all() {
        try {
            prepare();
            for (const RunOutput& output : plan_.outputs) await(output);
            finish();
        } catch (const RunEnded&) {
            end();
        } catch (...) {
            end();
            throw;
        }
    }

 private:
    /// A failed step is reported; Retry repeats it, Cancel ends the run.
    void step(const std::function<void()>& action) {
        for (;;) {
            try {
                return action();
            } catch (const RunTimeError& error) {
                const MessageBox box{"The following error has occurred: \"" + error.description +
                                         "\".  (Error Number = " + std::to_string(error.number) + ")",
                                     "ERROR:", BoxIcon::None, BoxButtons::RetryCancel};
                if (host_.showBox(box) == BoxAnswer::Retry) continue;
                hooks_.setStatus("");
                throw RunEnded{};
            }
        }
    }

    void prepare() {
        tell(hooks_.setTip, "");
        tell(hooks_.setReason, "");
        begin();
        takePlan();
        while ((lock_ = RunLock::take(plan_.directory)) == nullptr) {
            hooks_.setBusy(false);
            hooks_.setStatus("");
            if (!goesElsewhere()) throw RunEnded{};
            begin();
            takePlan();
        }
        hooks_.showName(plan_.firstName);
        step([this] { writeControlFile(plan_); });
        step([this] { writeBatchFile(plan_); });
        step([this] { removeMarker(plan_); });
        step([this] { starter_.startRun(plan_.batch()); });
    }

    void begin() {
        if (!form_.showsItsStart) return;
        hooks_.setBusy(true);
        hooks_.setStatus("Running...");
    }

    void takePlan() {
        step([this] {
            plan_ = hooks_.plan();
            needBatchNames(plan_);
        });
    }

    /// Otherwise the run of another window would end with this one's marker, or this one with the other's.
    bool goesElsewhere() {
        const MessageBox box{
            "Another window waits for a run in " + plan_.directory +
                ". A second run there would take its files away.\n\nWould you like to choose "
                "another output directory?",
            "", BoxIcon::Question, BoxButtons::YesNo};
        return host_.showBox(box) == BoxAnswer::Yes && hooks_.chooseDirectory && hooks_.chooseDirectory();
    }

    void awaitMarker() {
        while (!hasMarker(plan_)) {
            animate();
            tell(hooks_.setReason, whyNoMarker());
        }
        tell(hooks_.setReason, "");
    }

    /// The wait has no time limit, but the user should know what it waits for.
    std::string whyNoMarker() {
        const std::string reason = foreseenTrouble(plan_);
        return reason.empty() ? starter_.outcome(plan_.batch().path()) : reason;
    }

    void await(const RunOutput& output) {
        awaitMarker();
        hooks_.showName(output.name);
        tell(hooks_.setTip, "");
        const std::string result = resultOf(plan_, output);
        if (result.empty())
            missed(output);
        else
            made(result);
    }

    void made(const std::string& result) {
        anyMade_ = true;
        step([&] { hooks_.load(result); });
        if (form_.restsAfterEach) animate();
        if (form_.tellsEachResult) hooks_.setStatus("Finished");
    }

    void missed(const RunOutput& output) {
        hooks_.setStatus(form_.tellsEachResult ? "Error has occurred."
                                               : "Error processing Station " + output.station);
        tell(hooks_.setTip, lastLineOfListing(plan_.listingPath()));
        missing_ += (missing_.empty() ? "" : ", ") + output.name;
    }

    void animate() {
        if (hooks_.abandoned()) throw RunEnded{};
        AnimateRunning(host_, hooks_.setStatus, hooks_.abandoned);
        if (hooks_.abandoned()) throw RunEnded{};
    }

    void finish() {
        if (form_.waitsOnceMore) awaitMarker();
        if (!form_.tellsEachResult) hooks_.setStatus("Finished");
        if (plan_.outputs.empty() && form_.waitsOnceMore) tellNothingAsked();
        // The label tells of the last output alone, or of none.
        if (form_.namesMissing && !missing_.empty())
            tell(hooks_.setTip,
                 "No FRQ file for " + missing_ + ": " + lastLineOfListing(plan_.listingPath()));
        if (anyMade_) tell(hooks_.setReason, warningsOfListing(plan_.listingPath()));
        if (!plan_.lastName.empty()) hooks_.showName(plan_.lastName);
        hooks_.showExit();
        hooks_.setBusy(false);
        step([this] { hooks_.keepTimeZone(); });
    }

    /// No location: nothing is made that could be told.
    void tellNothingAsked() {
        hooks_.setStatus("Error has occurred.");
        const std::string why = lastLineOfListing(plan_.listingPath());
        tell(hooks_.setTip, why);
        tell(hooks_.setReason, why);
    }

    static void tell(const std::function<void(const std::string&)>& hook, const std::string& text) {
        if (hook) hook(text);
    }

    void end() {
        tell(hooks_.setReason, "");
        hooks_.setBusy(false);
    }

    Host& host_;
    ProcessStarter& starter_;
    const RunForm& form_;
    const RunHooks hooks_;
    RunPlan plan_;
    std::shared_ptr<RunLock> lock_;
    std::string missing_;  ///< names of the outputs without a result
    bool anyMade_ = false;
};

}  // namespace

void AnimateRunning(Host& host, const std::function<void(const std::string&)>& setStatus,
                    const std::function<bool()>& abandoned) {
    for (const char* text : {"Running.  ", "Running.. ", "Running..."}) {
        setStatus(text);
        const std::int64_t end = host.tickCount() + animationMs;
        for (std::int64_t left = animationMs; left > 0 && !abandoned(); left = end - host.tickCount())
            WaitMs(host, static_cast<std::int32_t>(std::min(left, sliceMs)));
    }
}

void runProcessor(Host& host, ProcessStarter& starter, const RunForm& form, RunHooks hooks) {
    Run(host, starter, form, std::move(hooks)).all();
}

}  // namespace zg
