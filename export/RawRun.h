#pragma once

// A file of raw data on its way to FRQ files, by the processor beside the program.

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "export/RawWishes.h"
#include "formats/Kinds.h"

namespace zg {

/// A directory of one run, removed with all it holds at the end.
class RunDirectory {
 public:
    /// Throws a RawFault where none can be made.
    RunDirectory();
    ~RunDirectory();
    RunDirectory(const RunDirectory&) = delete;
    RunDirectory& operator=(const RunDirectory&) = delete;

    const std::string& path() const { return path_; }

 private:
    std::string path_;
};

/// What became of a file: its FRQ files live as long as this.
struct RawResult {
    std::vector<std::string> frqFiles;
    std::vector<std::string> kept;  ///< files that stay in the directory for the output
    std::vector<std::string> told;  ///< lines: what a table was taken for, warnings, what would run
    std::unique_ptr<RunDirectory> directory;
};

/// A file to be made roses of.
struct RawInput {
    std::string path;
    InputKind kind = InputKind::AermSfc;
    std::string stem;  ///< the names of all that is made begin with it
};

/// Reads the header, writes the control file and lets the processor make its roses; several of them may go on
/// at once. Throws a RawFault or a RunTimeError. A stop ends the processor too.
RawResult rosesOfRaw(const RawInput& input, const RawWishes& wishes, const std::string& directory,
                     const std::atomic<bool>& stopped);

}  // namespace zg
