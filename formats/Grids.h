#pragma once

// What is known about gridded files by those who read their headers and those who read all of them.

#include <string_view>

#include "formats/Kinds.h"

namespace zg {

constexpr int mostCellsOfSide = 100'000;  ///< a larger number is invalid, as are the next two
constexpr int mostLevelsOfGrid = 10'000;
constexpr int mostComments = 1'000'000;

/// The datum of 3D.DAT: the sphere of 6370 km that the models behind it use.
constexpr const char* sphereOfModels = "NWS-84";

/// Whether a file of that kind may be on a map of that code, in capital letters.
bool hasMap(InputKind kind, std::string_view code);

}  // namespace zg
