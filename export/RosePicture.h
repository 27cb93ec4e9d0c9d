#pragma once

#include <memory>
#include <string>

#include "export/Drawing.h"
#include "export/StyleRequest.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"

namespace zg {

/// A rose of loaded tables.
struct RoseOfFile {
    std::shared_ptr<const ModPolarGraph> tables;
    std::shared_ptr<const Polar> polar;
    int rose = 1;
    std::string file;    ///< the path of its FRQ file
    std::string source;  ///< the path that was given: of that file, or of the raw data that it was made of
};

/// What went wrong with a picture, "" for nothing.
struct PictureFault {
    std::string text;
    bool noRoom = false;  ///< no later picture can be written either
};

/// The page of a rose: a square of that side, with its table beside it where the look wants that.
Drawing roseDrawing(const RoseOfFile& rose, const PictureLook& look, int side);

/// The first title line of its file, in which the station is named; without one the second, or the file's
/// name.
std::string stationOf(const RoseOfFile& rose);

/// The rose's own title, or its number.
std::string periodOf(const RoseOfFile& rose);

/// Tables that show that rose in that look.
ModPolarGraph tablesFor(const RoseOfFile& rose, const PictureLook& look);

/// Draws the page into a new file of that kind: "png" and "bmp" have a pixel a unit, "svg" and "pdf" are
/// drawn by the same strokes on a page of so many 96ths of an inch. Replaces the file at once when it is
/// whole. Throws std::bad_alloc for a page that memory cannot hold.
PictureFault savePicture(const Drawing& drawing, const std::string& path, const std::string& format);

/// A file of that name made by the function, which tells whether it could; replaced at once when it is whole.
PictureFault saveFile(const std::string& path, const std::function<bool(QIODevice&)>& write);

}  // namespace zg
