#pragma once

// One run of the external processor: control file, batch file, start, the wait for its marker, and what is
// done with each result. It is a list of small steps, so that a step that failed can be tried again.

#include <functional>
#include <string>
#include <vector>

#include "base/Host.h"
#include "processing/ProcessStarter.h"

namespace zg {

/// How a run tells what became of its outputs.
enum class RunForm {
    Stations,  ///< "Finished" at the end whatever happened; no hourglass at the start
    Heights,   ///< the last result stays
    Single,
    Locations  ///< as Heights, with one wait more at the end; a result is told as soon as it is plotted
};

struct RunOutput {
    std::string name;     ///< of the .frq file, without extension
    std::string station;  ///< as the list shows it
};

/// What the dialog does for a run. Each raises a RunTimeError where it fails, and is then tried again if the
/// user wants it.
struct RunHooks {
    std::function<void()> readValues;                 ///< the fields become the run's values and names
    std::function<std::string()> base;                ///< of the run's files
    std::function<std::string()> outputDirectory;     ///< trimmed, with its final separator
    std::function<std::vector<RunOutput>()> outputs;  ///< those that are asked for, in order
    std::function<std::string()> firstName;           ///< shown before the run
    std::function<void()> writeControlFile;
    std::function<void(const std::string&)> showName;   ///< of the output that is being worked on
    std::function<void(const std::string&)> setStatus;  ///< lblStatus
    std::function<void(bool)> setBusy;                  ///< the hourglass; back at every end of a run
    std::function<void(const std::string&)> load;       ///< plots an FRQ file in the main window
    std::function<void()> showExit;                     ///< cmdExit reads "Exit" and is enabled
    std::function<void()> keepTimeZone;                 ///< the zone picked is saved with the settings
    std::function<bool()> abandoned;                    ///< the program is being closed

    // Beside the status, where the form has them.
    std::function<void(const std::string&)>
        setReason;  ///< why the wait does not end, or what the processor warns of; "" takes it away
    std::function<void(const std::string&)> setTip;  ///< what the status tells of; "" takes it away
    std::function<bool()> chooseDirectory;           ///< another one for the output; false for none
};

/// Changes a status label three times in 900 milliseconds; ends early once it is abandoned.
void AnimateRunning(Host& host, const std::function<void(const std::string&)>& setStatus,
                    const std::function<bool()>& abandoned);

/// Runs to the end, to a Cancel, or until it is abandoned. The wait for the marker has no end of its own.
void runProcessor(Host& host, ProcessStarter& starter, RunForm form, const RunHooks& hooks);

}  // namespace zg
