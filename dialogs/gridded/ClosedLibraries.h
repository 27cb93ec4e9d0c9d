#pragma once

#include <string>

namespace zg {

/// Libraries in the program's directory that replace its own header reader and table of datums: infoview_dll
/// with the function infoview, and init with the function init. Called before either is used; without the
/// libraries it restores the program's own.
void useLibrariesBeside(const std::string& directory);

}  // namespace zg
