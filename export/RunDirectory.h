#pragma once

// Where the processor works while the companion needs only its results.

#include <memory>
#include <string>

namespace zg {

class TemporaryFiles;

/// A directory for one run, removed with its contents at the end. Those that killed companions of the same
/// user left on this machine are removed when the first one is made: under a processor too that goes on
/// without its companion. Several threads may have some.
class RunDirectory {
 public:
    /// Throws a RawFault if it cannot be created.
    RunDirectory();
    ~RunDirectory();
    RunDirectory(const RunDirectory&) = delete;
    RunDirectory& operator=(const RunDirectory&) = delete;

    const std::string& path() const { return path_; }

 private:
    std::shared_ptr<TemporaryFiles> files_;
    std::string path_;
};

}  // namespace zg
