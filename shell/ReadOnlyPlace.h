#pragma once

#include <string>

#include "base/Host.h"

namespace zg {

/// Files can be made in that directory: tried with one that is removed again.
bool canWriteIn(const std::string& directory);

/// The program keeps its settings, expressions and pictures beside itself. Where it cannot, the user is told,
/// once for each place: which places were told stands in a file of that directory, which is made when it is
/// needed. Where that cannot be written either, the user is told at each start.
void tellReadOnlyPlace(Host& host, const std::string& notesDirectory);

}  // namespace zg
