#pragma once

#include <string>

#include "headers/InfoView.h"

namespace zg {

/// The program's own infoview operation: reads the header of a 3D.DAT or VENTOS.DAT file, all its lines up to
/// the data. For a file of another format, one truncated in its header, and one that cannot be read, sets the
/// error flag and a text with line and field. Raises nothing.
void readGridFileHeader(const std::string& path, GridKind kind, InfoViewResult& result);

}  // namespace zg
