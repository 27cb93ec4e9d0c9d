#pragma once

// The period of an AERMET surface or profile file, given by its first and its last line.

#include <functional>
#include <string>

#include "base/Dates.h"
#include "formats/Kinds.h"
#include "headers/HeaderSource.h"

namespace zg {

struct AermetPeriod {
    std::string station;  ///< from a surface file's header; "" for a profile
    DateTime begin;       ///< hours are stamped with their end: an hour before the first
    DateTime end;
};

/// Reads the whole file, of the kind AermSfc or AermPfl; onProgress is called at intervals. The kind of file
/// is not checked: a wrong file raises a HeaderError 13 or 9, a file that ends too early 62.
AermetPeriod readAermetPeriod(HeaderSource& source, InputKind kind,
                              const std::function<void()>& onProgress = {});

}  // namespace zg
