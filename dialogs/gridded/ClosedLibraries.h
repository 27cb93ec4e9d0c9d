#pragma once

#include <string>

namespace zg {

/// Libraries of documented names beside the program take the place of its own header reader and table of
/// datums: infoview_dll with the function infoview, and init with the function init. Called before either is
/// used; without them the program's own are put back.
void useLibrariesBeside(const std::string& directory);

}  // namespace zg
