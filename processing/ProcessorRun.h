#pragma once

// One run of the external processor: control file, batch file, start, the wait for its marker, and the
// treatment of each result. It is a list of small steps, so that a failed step can be retried.

#include <functional>
#include <string>
#include <vector>

#include "base/Host.h"
#include "processing/ProcessStarter.h"

namespace zg {

/// How a run reports the results of its outputs.
enum class RunForm {
    Stations,  ///< "Finished" at the end in any case; no hourglass at the start
    Heights,   ///< the last result remains
    Single,
    Locations  ///< like Heights, with one more wait at the end; a result is reported as soon as it is plotted
};

struct RunOutput {
    std::string name;     ///< of the .frq file, without extension
    std::string station;  ///< as the list shows it
};

/// What the dialog does for a run. Each function raises a RunTimeError on failure, and is then retried if the
/// user wishes.
struct RunHooks {
    std::function<void()> readValues;                 ///< takes the run's values and names from the fields
    std::function<std::string()> base;                ///< of the run's files
    std::function<std::string()> outputDirectory;     ///< trimmed, with its final separator
    std::function<std::vector<RunOutput>()> outputs;  ///< those requested, in order
    std::function<std::string()> firstName;           ///< shown before the run
    std::function<void()> writeControlFile;
    std::function<void(const std::string&)> showName;   ///< of the current output
    std::function<void(const std::string&)> setStatus;  ///< lblStatus
    std::function<void(bool)> setBusy;                  ///< the hourglass; off at every end of a run
    std::function<void(const std::string&)> load;       ///< plots an FRQ file in the main window
    std::function<void()> showExit;                     ///< cmdExit reads "Exit" and is enabled
    std::function<void()> keepTimeZone;                 ///< saves the selected zone with the settings
    std::function<bool()> abandoned;                    ///< the program is being closed

    // Beside the status, if the form has them.
    std::function<void(const std::string&)>
        setReason;  ///< why the wait does not end, or the processor's warnings; "" removes it
    std::function<void(const std::string&)> setTip;  ///< details of the status; "" removes them
    std::function<bool()> chooseDirectory;  ///< asks for another directory for the output; false for none
};

/// Changes a status label three times in 900 milliseconds; ends early if abandoned.
void AnimateRunning(Host& host, const std::function<void(const std::string&)>& setStatus,
                    const std::function<bool()>& abandoned);

/// Runs to the end, to a Cancel, or until it is abandoned. The wait for the marker has no time limit.
void runProcessor(Host& host, ProcessStarter& starter, RunForm form, const RunHooks& hooks);

}  // namespace zg
