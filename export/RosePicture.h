#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// What went wrong with a picture, "" if nothing.
struct PictureFault {
    std::string text;
    bool noRoom = false;  ///< no later picture can be written either
};

/// Draws a rose of the tables into a new file of that kind: "png" and "bmp" have this many pixels per side,
/// "svg" and "pdf" are drawn with the same strokes on a page of this many 96ths of an inch. An existing file
/// is replaced in one step when the new one is complete. Throws std::bad_alloc for a page that does not fit
/// in memory.
PictureFault drawRosePicture(ModPolarGraph& tables, const Polar& polar, int rose, const std::string& path,
                             const std::string& format, int side);

}  // namespace zg
