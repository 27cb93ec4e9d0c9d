#pragma once

// The export of every rose of one FRQ file, or of every FRQ file of a directory, as bitmaps. It draws and
// parses nothing: it drives the commands that the user drives by hand.

#include <functional>
#include <string>

#include "base/Host.h"
#include "batch/BatchNotes.h"

namespace zg {

/// What the run is to do; directories end in their separator.
struct BatchRequest {
    bool ofDirectory = false;
    std::string file;       ///< of a single file's run
    std::string root;       ///< in front of its bitmaps' names
    std::string directory;  ///< of FRQ files
    std::string workDirectory;
    float percentValidLimit = 0;  ///< lowest percent of valid hours of a rose that is exported
};

/// The commands of the main window that a run drives.
struct BatchHooks {
    std::function<bool()> openFrqFile;  ///< takes the run's file without asking; false where it was refused
    std::function<void()> exportRose;   ///< redraws and saves under batchBitmapPath without asking
};

/// Runs with BatchMode set, which is off again at the end however the end comes about; events are served
/// after each rose, so that it is seen. Raises what the commands raise, errors of a file with its name and
/// line; the notes then tell of the run up to there.
void runBatch(Host& host, const BatchRequest& request, const BatchHooks& hooks, BatchNotes& notes);

}  // namespace zg
