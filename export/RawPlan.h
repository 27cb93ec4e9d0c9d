#pragma once

// From what a header tells and what is asked to control files.

#include <string>
#include <vector>

#include "export/RawFacts.h"
#include "processing/ControlFile.h"

namespace zg {

/// The control files of a file of raw data: one, or one a station for kinds that make one output a run. The
/// names of their outputs begin with the stem. Throws a RawFault for a wish that the header contradicts, in
/// the words of the kind's dialog where it has such words.
std::vector<ControlFile> controlFilesOf(const std::string& path, const std::string& stem,
                                        const RawFacts& header, const RawWishes& wishes);

/// What is wrong with wishes whatever the data are. Throws a RawFault.
void needPlainWishes(const RawWishes& wishes);

}  // namespace zg
