#pragma once

#include <string>

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// What went wrong with a picture, "" for nothing.
struct PictureFault {
    std::string text;
    bool noRoom = false;  ///< no picture after it can be written either
};

/// Draws a rose of the tables into a new file of that kind: "png" and "bmp" have so many pixels a side, "svg"
/// and "pdf" are drawn by the same strokes on a page of so many 96ths of an inch. Replaces the file at once
/// when it is whole. Throws std::bad_alloc for a page that memory cannot hold.
PictureFault drawRosePicture(ModPolarGraph& tables, const Polar& polar, int rose, const std::string& path,
                             const std::string& format, int side);

}  // namespace zg
