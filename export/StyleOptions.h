#pragma once

#include <CLI/CLI.hpp>

#include "export/StyleRequest.h"

namespace zg {

/// The options for the look of pictures, in groups of their own.
void addStyleOptions(CLI::App& app, StyleRequest& request);

}  // namespace zg
