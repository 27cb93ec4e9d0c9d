#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// The names of the columns of tablesAsCsv, as a line.
std::string tablesCsvHeading();

/// A line a direction and class of each rose, and one a rose for its calms: file, rose, title, direction,
/// degrees, class, from, to (m/s), unit, share (percent of the valid hours), hours where the file knows them.
/// Texts with a comma or a quote stand in quotes, as in RFC 4180; lines end in LF.
std::string tablesAsCsv(const ModPolarGraph& tables, const std::string& file);

}  // namespace zg
