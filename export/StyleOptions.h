#pragma once

#include <CLI/CLI.hpp>

#include "export/StyleRequest.h"

namespace zg {

/// The options of how pictures look, in groups of their own.
void addStyleOptions(CLI::App& app, StyleRequest& request);

}  // namespace zg
