#pragma once

// Exports every rose of one FRQ file, or of every FRQ file of a directory, as bitmaps. It does not draw or
// parse: it executes the commands that the user would choose.

#include <functional>
#include <string>

#include "base/Host.h"
#include "batch/BatchNotes.h"

namespace zg {

/// The settings of a run; directories end with their separator.
struct BatchRequest {
    bool ofDirectory = false;
    std::string file;       ///< of a single file's run
    std::string root;       ///< prefix of its bitmaps' names
    std::string directory;  ///< of FRQ files
    std::string workDirectory;
    float percentValidLimit = 0;  ///< lowest percentage of valid hours of a rose to export
};

/// The commands of the main window that a run uses.
struct BatchHooks {
    std::function<bool()> openFrqFile;  ///< opens the run's file without asking; false if it was refused
    std::function<void()> exportRose;   ///< redraws and saves under batchBitmapPath without asking
};

/// Runs with BatchMode set, which is cleared at the end in any case; events are served after each rose, so
/// that it is displayed. Raises the errors of the commands, those of a file with its name and line; the notes
/// then cover the run so far.
void runBatch(Host& host, const BatchRequest& request, const BatchHooks& hooks, BatchNotes& notes);

}  // namespace zg
