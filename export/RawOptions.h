#pragma once

// The command-line options for raw data.

#include "export/RawWishes.h"

namespace CLI {
class App;
}

namespace zg {

/// Adds them to the command, in groups of their own; parsing fills in the values.
class RawOptions {
 public:
    explicit RawOptions(CLI::App& app);
    RawOptions(const RawOptions&) = delete;
    RawOptions& operator=(const RawOptions&) = delete;

    /// To be called after parsing. Throws a RawFault for a meaningless value.
    const RawWishes& wishes();

 private:
    RawWishes wishes_;
    std::string delimiter_;
    std::string unit_;
    std::string stamp_ = "begin";
};

}  // namespace zg
