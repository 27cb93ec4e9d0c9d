#pragma once

// Exports every rose of one FRQ file, or of every FRQ file of a directory, as bitmaps. It does not draw or
// parse: it executes the commands that the user would choose.

#include <functional>
#include <string>

#include "base/Host.h"
#include "batch/BatchNotes.h"
#include "graph/frq/ModPolarGraph.h"

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

/// The commands of the main window that a run calls.
struct BatchHooks {
    /// Loads a file into the tables and displays it; false if it was refused.
    std::function<bool(const std::string& path)> openFrqFile;
    /// Redraws the displayed rose and saves the page as that bitmap, without asking.
    std::function<void(const std::string& picture)> saveRose;
};

/// Exports the roses that the hooks load into the tables, one after the other; the last one tried remains the
/// displayed one. The settings mirror the run; BatchMode is cleared at the end in any case. Events are served
/// after each rose, so that it is displayed. Raises the errors of the commands, those of a file with its name
/// and line; the notes then cover the run so far.
void runBatch(Host& host, ModPolarGraph& tables, const BatchRequest& request, const BatchHooks& hooks,
              BatchNotes& notes);

}  // namespace zg
