#pragma once

#include <string>

#include "graph/model/Plot.h"

namespace zg {

/// The record of one curve in a graph file: its fields in their fixed order, each followed by "//", then the
/// comment of the control. Nothing is escaped.
std::string graphRecord(const GrapInfo& graph, const std::string& comment);

/// Writes a record that names the file's kind, then the curves as quoted records. Raises the error of the
/// file, which then keeps what has been written.
void writeGraphFile(const std::string& path, const Plot& plot, const std::string& comment);

}  // namespace zg
