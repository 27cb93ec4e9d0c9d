#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/Kinds.h"

namespace zg {

/// The kind of a raw file by its first line, else by its name, else by its columns; nothing for a frequency
/// file and for a file of no such kind. Raises the error of a file that cannot be read.
std::optional<InputKind> droppedKind(const std::string& path);

/// The kind of gridded files that are all of one kind, as the files of one run are; else nothing.
std::optional<InputKind> commonGriddedKind(const std::vector<std::string>& paths);

/// A batch run that dropped files ask for.
struct DroppedBatch {
    std::string directory;
    std::string note;  ///< what is exported besides the dropped files, or not; "" if these are all
};

/// The batch run for a directory, or for several frequency files of one directory; else nothing.
std::optional<DroppedBatch> droppedBatch(const std::vector<std::string>& paths);

}  // namespace zg
