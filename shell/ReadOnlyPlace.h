#pragma once

#include <string>

#include "base/Host.h"

namespace zg {

/// Whether files can be created in that directory; tries one and removes it again.
bool canWriteIn(const std::string& directory);

/// The program keeps its settings, expressions and pictures in its own directory. If it cannot write there,
/// settingsDirectory becomes the given one, which is created; settings and expressions that lie beside the
/// program are copied there once. If that one cannot be written either, nothing is kept.
void chooseSettingsDirectory(const std::string& userDirectory);

/// Tells the user if the settings are not beside the program, once per place: a file in the given directory
/// lists the places. If that cannot be written either, the user is told at each start.
void tellReadOnlyPlace(Host& host, const std::string& notesDirectory);

}  // namespace zg
