#pragma once

// The user's own list of expressions: quoted records after a first one that names the file's kind.

#include <string>
#include <vector>

namespace zg {

/// The expressions of the file in their order; none for a file that cannot be read or is of another kind.
std::vector<std::string> readExpressions(const std::string& path);

/// Replaces the file. False if it could not be written; the old file is then unchanged.
bool writeExpressions(const std::string& path, const std::vector<std::string>& expressions);

/// Whether the texts are the same expression: letter case and blanks do not matter.
bool sameExpression(const std::string& a, const std::string& b);

}  // namespace zg
