#pragma once

// The period of an AERMET surface or profile file, which its first and its last line tell.

#include <functional>
#include <string>

#include "base/Dates.h"

namespace zg {

enum class AermetKind { Surface, Profile };

struct AermetPeriod {
    std::string station;  ///< of a surface file's header; "" of a profile
    DateTime begin;       ///< hours stand at their end: an hour before the first
    DateTime end;
};

/// Reads the whole file; onProgress is called now and then. There is no test of the kind: a wrong file raises
/// 13 or 9, a file that ends too early 62, each with the number of its line.
AermetPeriod readAermetPeriod(const std::string& path, AermetKind kind,
                              const std::function<void()>& onProgress = {});

}  // namespace zg
