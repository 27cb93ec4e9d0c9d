#pragma once

#include <string>

#include "dialogs/gridded/InfoView.h"

namespace zg {

/// The program's own answer to infoview: reads the header of a 3D.DAT or VENTOS.DAT file, all its lines up to
/// the data. A file of another form, one cut off in its header, and one that cannot be read set the error
/// flag and a text that names line and field. Nothing is raised.
void readGridFileHeader(const std::string& path, GridKind kind, InfoViewResult& result);

}  // namespace zg
