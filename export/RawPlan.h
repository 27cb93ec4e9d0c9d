#pragma once

// Makes control files from a header and the requests for it.

#include <string>
#include <vector>

#include "export/RawFacts.h"
#include "processing/ControlFile.h"

namespace zg {

/// The control files for a file of raw data: one, or one per station for kinds with one output per run. The
/// names of their outputs begin with the stem. Throws a RawFault for a request that contradicts the header,
/// in the words of the kind's dialog if it has any.
std::vector<ControlFile> controlFilesOf(const std::string& path, const std::string& stem,
                                        const RawFacts& header, const RawWishes& wishes);

/// The text as part of the name of a result.
std::string partOfName(std::string text);

/// Checks requests that are wrong whatever the data are. Throws a RawFault.
void needPlainWishes(const RawWishes& wishes);

}  // namespace zg
