#pragma once

// The words of the command line that are about raw data.

#include "export/RawWishes.h"

namespace CLI {
class App;
}

namespace zg {

/// Adds them to the command, in groups of their own; they are filled when it is parsed.
class RawOptions {
 public:
    explicit RawOptions(CLI::App& app);
    RawOptions(const RawOptions&) = delete;
    RawOptions& operator=(const RawOptions&) = delete;

    /// After the command was parsed. Throws a RawFault for a word that has no meaning.
    const RawWishes& wishes();

 private:
    RawWishes wishes_;
    std::string delimiter_;
    std::string unit_;
    std::string stamp_ = "begin";
};

}  // namespace zg
