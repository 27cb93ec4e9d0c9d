#pragma once

// One run of the external processor for a window: control file, batch file, start, the wait for its marker,
// and the treatment of each result. It is a list of small steps, so that a failed step can be retried.

#include <functional>
#include <string>

#include "base/Host.h"
#include "processing/ProcessStarter.h"
#include "processing/RunPlan.h"

namespace zg {

/// How a run reports its results: everything that differs between the dialogs.
struct RunForm {
    bool showsItsStart;    ///< the hourglass and "Running..." before the fields are read
    bool tellsEachResult;  ///< if not: the stations that failed, and "Finished" at the end in any case
    bool restsAfterEach;   ///< one more step of the animation after a rose was plotted
    bool waitsOnceMore;    ///< for the marker, after the last result
    bool namesMissing;     ///< the tip of the status names all missing outputs

    static const RunForm Stations;
    static const RunForm Heights;
    static const RunForm Single;
    static const RunForm Locations;
};

inline constexpr RunForm RunForm::Stations{.showsItsStart = false,
                                           .tellsEachResult = false,
                                           .restsAfterEach = true,
                                           .waitsOnceMore = false,
                                           .namesMissing = true};
inline constexpr RunForm RunForm::Heights{.showsItsStart = true,
                                          .tellsEachResult = true,
                                          .restsAfterEach = true,
                                          .waitsOnceMore = false,
                                          .namesMissing = true};
inline constexpr RunForm RunForm::Single{.showsItsStart = true,
                                         .tellsEachResult = true,
                                         .restsAfterEach = true,
                                         .waitsOnceMore = false,
                                         .namesMissing = false};
/// Without its last wait a run of no location would not wait at all.
inline constexpr RunForm RunForm::Locations{.showsItsStart = true,
                                            .tellsEachResult = true,
                                            .restsAfterEach = false,
                                            .waitsOnceMore = true,
                                            .namesMissing = true};

/// What the dialog does for a run. Each function raises a RunTimeError on failure, and is then retried if the
/// user wishes.
struct RunHooks {
    std::function<RunPlan()> plan;                      ///< what the fields say now
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

/// Runs to the end, to a Cancel, or until it is abandoned. The wait for the marker has no time limit. Another
/// run may be started meanwhile: each has its own plan and hooks.
void runProcessor(Host& host, ProcessStarter& starter, const RunForm& form, RunHooks hooks);

}  // namespace zg
