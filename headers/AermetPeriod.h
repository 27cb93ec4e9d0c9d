#pragma once

// The period of an AERMET surface or profile file, given by its first and its last line.

#include <functional>
#include <string>

#include "base/Dates.h"

namespace zg {

enum class AermetKind { Surface, Profile };

struct AermetPeriod {
    std::string station;  ///< from a surface file's header; "" for a profile
    DateTime begin;       ///< hours are stamped with their end: an hour before the first
    DateTime end;
};

/// Reads the whole file; onProgress is called at intervals. The kind of file is not checked: a wrong file
/// raises 13 or 9, a file that ends too early 62, each with the line number.
AermetPeriod readAermetPeriod(const std::string& path, AermetKind kind,
                              const std::function<void()>& onProgress = {});

}  // namespace zg
