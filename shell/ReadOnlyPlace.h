#pragma once

#include <string>

#include "base/Host.h"

namespace zg {

/// Whether files can be created in that directory; tries one and removes it again.
bool canWriteIn(const std::string& directory);

/// The program keeps its settings, expressions and pictures in its own directory. If it cannot write there,
/// it tells the user, once per place: a file in the given directory, created when needed, lists the places.
/// If that cannot be written either, the user is told at each start.
void tellReadOnlyPlace(Host& host, const std::string& notesDirectory);

}  // namespace zg
