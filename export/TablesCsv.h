#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// The names of the columns of tablesAsCsv, as a line.
std::string tablesCsvHeading();

/// One line per direction and class of each rose, and one per rose for its calms: file, rose, title,
/// direction, degrees, class, from, to (m/s), unit, share (percent of the valid hours), hours if the file
/// states them. Texts with a comma or a quote are quoted, as in RFC 4180; lines end in LF.
std::string tablesAsCsv(const ModPolarGraph& tables, const std::string& file);

}  // namespace zg
