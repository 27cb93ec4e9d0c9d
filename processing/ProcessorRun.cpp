#include "processing/ProcessorRun.h"

#include <algorithm>
#include <cerrno>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "processing/BatchFile.h"
#include "processing/RunLock.h"
#include "processing/RunReasons.h"
#include "processing/Wait.h"

namespace zg {

namespace {

constexpr const char* batchName = "run_tempoline.bat";
constexpr const char* markerName = "finished.txt";
constexpr std::int64_t animationMs = 300;
constexpr std::int64_t sliceMs = 50;  // between checks whether the program is being closed

/// The user chose Cancel, or the program is being closed.
struct RunEnded {};

class Run {
 public:
    Run(Host& host, ProcessStarter& starter, RunForm form, const RunHooks& hooks)
        : host_(host), starter_(starter), form_(form), hooks_(hooks) {}

    void all() {
        try {
            prepare();
            for (const RunOutput& output : outputs_) await(output);
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
        readValues();
        while ((lock_ = RunLock::take(directory_)) == nullptr) {
            hooks_.setBusy(false);
            hooks_.setStatus("");
            if (!goesElsewhere()) throw RunEnded{};
            begin();
            readValues();
        }
        hooks_.showName(hooks_.firstName());
        step([this] { hooks_.writeControlFile(); });
        step([this] { writeBatchFile(); });
        step([this] { removeMarker(); });
        step([this] { starter_.start(directory_ + batchName, WindowStyle::NormalFocus); });
    }

    void begin() {
        if (form_ == RunForm::Stations) return;
        hooks_.setBusy(true);
        hooks_.setStatus("Running...");
    }

    /// A name that the batch file cannot contain is refused before anything is written.
    void readValues() {
        step([this] {
            hooks_.readValues();
            directory_ = hooks_.outputDirectory();
            base_ = hooks_.base();
            outputs_ = hooks_.outputs();
            batch_ = batchLines(batchDirectory(directory_), base_, batchDirectory(applicationDirectory));
            for (std::string& line : batch_) line = batchBytes(line);
        });
    }

    /// Otherwise the run of another window would end with this one's marker, or this one with the other's.
    bool goesElsewhere() {
        const MessageBox box{
            "Another window waits for a run in " + directory_ +
                ". A second run there would take its files away.\n\nWould you like to choose "
                "another output directory?",
            "", BoxIcon::Question, BoxButtons::YesNo};
        return host_.showBox(box) == BoxAnswer::Yes && hooks_.chooseDirectory && hooks_.chooseDirectory();
    }

    void writeBatchFile() {
        LineWriter file(directory_ + batchName);
        for (const std::string& line : batch_) file.writeLine(line);
        file.close();
    }

    /// In every letter case: each of them would end the wait.
    void removeMarker() {
        for (std::string marker; !(marker = existingFile(directory_ + markerName)).empty();)
            if (!removeFile(marker)) raiseFileError(errno);
    }

    void awaitMarker() {
        while (!fileExists(directory_ + markerName)) {
            animate();
            tell(hooks_.setReason, whyNoMarker());
        }
        tell(hooks_.setReason, "");
    }

    /// The wait has no time limit, but the user should know what it waits for.
    std::string whyNoMarker() {
        const std::string reason = foreseenTrouble(base_, applicationDirectory);
        return reason.empty() ? starter_.outcome(directory_ + batchName) : reason;
    }

    void await(const RunOutput& output) {
        awaitMarker();
        hooks_.showName(output.name);
        // Blanks around a value in the control file are not part of it.
        const std::string result = existingFile(directory_ + trim(output.name) + ".frq");
        made_ = !result.empty();
        anyMade_ = anyMade_ || made_;
        tell(hooks_.setTip, "");
        if (made_) {
            step([&] { hooks_.load(result); });
            if (form_ != RunForm::Locations) animate();
            if (form_ == RunForm::Heights || form_ == RunForm::Locations) hooks_.setStatus("Finished");
        } else {
            hooks_.setStatus(form_ == RunForm::Stations ? "Error processing Station " + output.station
                                                        : "Error has occurred.");
            tell(hooks_.setTip, listingsEnd());
            missing_ += (missing_.empty() ? "" : ", ") + output.name;
        }
    }

    std::string listing() const { return directory_ + base_ + "_tempoline.lst"; }
    std::string listingsEnd() const { return lastLineOfListing(listing()); }

    void animate() {
        if (hooks_.abandoned()) throw RunEnded{};
        AnimateRunning(host_, hooks_.setStatus, hooks_.abandoned);
        if (hooks_.abandoned()) throw RunEnded{};
    }

    void finish() {
        if (form_ == RunForm::Locations) awaitMarker();  // a run without locations has not waited yet
        if (form_ == RunForm::Stations || (form_ == RunForm::Single && made_)) hooks_.setStatus("Finished");
        // The label reports only the last output, or none.
        if (form_ != RunForm::Single && !missing_.empty())
            tell(hooks_.setTip, "No FRQ file for " + missing_ + ": " + listingsEnd());
        if (anyMade_) tell(hooks_.setReason, warningsOfListing(listing()));
        hooks_.showExit();
        hooks_.setBusy(false);
        step([this] { hooks_.keepTimeZone(); });
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
    RunForm form_;
    const RunHooks& hooks_;
    std::string directory_;
    std::string base_;
    std::vector<RunOutput> outputs_;
    std::vector<std::string> batch_;
    std::shared_ptr<RunLock> lock_;
    std::string missing_;  ///< names of the outputs without a result
    bool made_ = false;    ///< of the last output
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

void runProcessor(Host& host, ProcessStarter& starter, RunForm form, const RunHooks& hooks) {
    Run(host, starter, form, hooks).all();
}

}  // namespace zg
