#pragma once

// The user's own list of expressions: quoted records behind a first one that names the file's kind.

#include <string>
#include <vector>

namespace zg {

/// The expressions of the file in their order; none for a file that cannot be read or is of another kind.
std::vector<std::string> readExpressions(const std::string& path);

/// Replaces the file. False where it could not be written; the old file then stays as it was.
bool writeExpressions(const std::string& path, const std::vector<std::string>& expressions);

/// The texts are the same expression: letter case and blanks do not count.
bool sameExpression(const std::string& a, const std::string& b);

}  // namespace zg
