#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"

namespace zg {

/// Every table of a loaded file as JSON under its own name, tables per rose with their unused index 0. Tables
/// that the file's version does not have are null. Texts are UTF-8.
std::string tablesAsJson(const ModPolarGraph& tables);

}  // namespace zg
