#pragma once

#include <string>
#include <vector>

namespace zg {

/// The frequency files opened last, the latest first, at most eight; those that no longer exist are left
/// out. The list is in recent.txt in settingsDirectory, a path a line.
std::vector<std::string> recentFiles();

/// Puts a file first in the list. A list that cannot be written stays as it is.
void rememberFile(const std::string& path);

}  // namespace zg
