#pragma once

// A run of the processor as data, and the files by which it is driven. Nothing here needs a window:
//
//     RunPlan plan = planOf(directory, control);  // ControlFile: the input, the period, what to make of it
//     writeControlFile(plan);                     // raises the error of the file
//     // Start plan.processorPath() in plan.directory with the one word plan.controlName(), and wait.
//     for (const RunOutput& output : plan.outputs)
//         resultOf(plan, output);                 // the path of its FRQ file, "" if there is none
//     lastLineOfListing(plan.listingPath());      // and why (RunReasons.h)
//
// The dialogs execute the same plan by runProcessor (ProcessorRun.h), which also writes the batch file that
// the shell starts, and waits for the marker that this leaves.

#include <string>
#include <string_view>
#include <vector>

#include "base/Paths.h"
#include "processing/BatchFile.h"
#include "processing/ControlFile.h"

namespace zg {

/// One result that a run is to make.
struct RunOutput {
    std::string name;     ///< of the FRQ file, without extension
    std::string station;  ///< as the list of stations shows it; "" if there is no such list
};

/// Everything that a run needs. It owns its values: what a form shows meanwhile does not change them.
struct RunPlan {
    std::string directory;  ///< of all files of the run except its input, with its final separator
    std::string programDirectory = applicationDirectory;  ///< of the processor, without a final separator
    ControlFile control;                                  ///< its base begins the names of the run's files
    std::vector<RunOutput> outputs;                       ///< in the order in which they are loaded
    std::string firstName;                                ///< displayed until the first result is looked for
    std::string lastName;  ///< displayed after the run; "" keeps the name of the last output

    std::string controlName() const { return control.base + "_tempoline.inp"; }
    std::string listingPath() const { return directory + control.base + "_tempoline.lst"; }
    std::string processorPath() const { return programDirectory + pathSeparator + "tempoline.exe"; }
    RunBatch batch() const { return {directory, control.base, programDirectory}; }
};

/// The plan of a control file: all of its outputs; the name of the first is displayed first.
RunPlan planOf(std::string directory, ControlFile control);

/// The period in a name: years unchanged, months and days in two digits, as in "20050307-20051231".
std::string periodInName(const ControlFile& control);

/// The file's name without its directory and its last four characters; raises 5 for a shorter name.
std::string fileBaseOf(const std::string& path);

/// Name of a station's output in a SURF.DAT run: the station's name or, if it has none, the input's name and
/// the text of its row in the list.
std::string surfOutputName(const std::string& fileBase, const std::string& row,
                           const std::string& stationName, const std::string& period,
                           const std::string& height);

/// Raises 52 for a name that the batch file cannot contain, or that no file in the run's directory can have.
/// Call it before anything is written.
void needBatchNames(const RunPlan& plan);

/// Each of these writes or removes one file, raises its error, and can be retried.
void writeControlFile(const RunPlan& plan);
void writeBatchFile(const RunPlan& plan);
/// In any letter case: each of them would end the wait.
void removeMarker(const RunPlan& plan);

/// Whether the batch file has reached its end, in any letter case.
bool hasMarker(const RunPlan& plan);

/// The path of an output's FRQ file as it is on disk, in any letter case; "" if there is none. An older file
/// of that name counts.
std::string resultOf(const RunPlan& plan, const RunOutput& output);

}  // namespace zg
