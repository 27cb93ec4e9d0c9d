#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// Draws a rose of the tables into a new file of that kind: "png" and "bmp" have so many pixels a side, "svg"
/// and "pdf" are drawn by the same strokes on a page of so many 96ths of an inch. Replaces the file at once
/// when it is whole. Returns what went wrong, "" for nothing.
std::string drawRosePicture(ModPolarGraph& tables, const Polar& polar, int rose, const std::string& path,
                            const std::string& format, int side);

}  // namespace zg
