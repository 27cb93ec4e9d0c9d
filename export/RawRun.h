#pragma once

// Turns a file of raw data into FRQ files, with the processor in the program's directory.

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "export/RawWishes.h"
#include "export/RunDirectory.h"
#include "formats/Kinds.h"

namespace zg {

/// The results of a file: its FRQ files exist as long as this object.
struct RawResult {
    std::vector<std::string> frqFiles;
    std::vector<std::string> kept;  ///< files that remain in the directory for the output
    std::vector<std::string> told;  ///< lines: how a table was interpreted, warnings, what would run
    std::unique_ptr<RunDirectory> directory;
};

/// A file from which roses are made.
struct RawInput {
    std::string path;
    InputKind kind = InputKind::AermSfc;
    std::string stem;  ///< prefix of the names of all results
};

/// Reads the header, writes the control file and lets the processor make its roses; several may run at the
/// same time. Throws a RawFault or a RunTimeError. A stop also ends the processor.
RawResult rosesOfRaw(const RawInput& input, const RawWishes& wishes, const std::string& directory,
                     const std::atomic<bool>& stopped);

}  // namespace zg
