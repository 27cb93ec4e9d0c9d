// Output of the picture and of the curves.

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/control/GraphFile.h"
#include "graph/control/PolarGraph.h"

namespace zg {

namespace {

constexpr const char* bitmapFilter = "Bitmap Files (*.bmp) | *.bmp;";

}  // namespace

/// The part of a shape that is on the page.
Rect PolarGraph::onPage(const ChildSurface& shape) const {
    const int right = std::min(shape.left + shape.width, page_.page);
    const int bottom = std::min(shape.top + shape.height, page_.page);
    const int left = std::max(0, shape.left);
    const int top = std::max(0, shape.top);
    return {static_cast<double>(left), static_cast<double>(top), static_cast<double>(std::max(left, right)),
            static_cast<double>(std::max(top, bottom))};
}

PicturePointer PolarGraph::FillBuffer(bool selectionOnly) {
    const auto side = static_cast<double>(page_.page);
    Rect part{0, 0, side, side};
    if (selectionOnly) part = onPage(surfaces_.shpSelect);
    if (showsOtherFonts())
        return window_.paintPage(side, part, [this](Canvas& canvas) { replayConfigured(canvas); });
    return window_.copyPage(part);
}

void PolarGraph::EditCopy() {
    if (const PicturePointer buffer = FillBuffer(ActiveSelection())) window_.pictureToClipboard(*buffer);
}

void PolarGraph::EditCopyTo() {
    FilePick pick;
    pick.filter = bitmapFilter;
    pick.overwritePrompt = true;
    const std::string path = host_.pickFileToSave(pick);
    if (!trim(path).empty()) EditCopyTo(path);
}

void PolarGraph::EditCopyTo(const std::string& path) {
    if (const PicturePointer buffer = FillBuffer(false)) window_.saveBitmap(*buffer, path);
}

void PolarGraph::SentToPrinter() {
    const auto side = static_cast<double>(page_.page);
    window_.print(side, [this](Canvas& canvas) { print(canvas); });
}

/// The content of the page stroke by stroke, or as pixels if there are more strokes than anyone could
/// distinguish.
void PolarGraph::print(Canvas& canvas) const {
    if (showsOtherFonts()) return replayConfigured(canvas);
    if (record_.isComplete()) return record_.replay(canvas);
    const auto side = static_cast<double>(page_.page);
    const Rect whole{0, 0, side, side};
    if (const PicturePointer picture = window_.copyPage(whole)) canvas.blit(picture, whole);
}

/// The content of the page with the fonts as configured.
void PolarGraph::replayConfigured(Canvas& canvas) const {
    if (configured_) configured_->replay(canvas);
    record_.replayAfterKept(canvas);
}

MarkerPictures PolarGraph::markerPictures(const Series& series) {
    if (!series.AllowMarker || !series.Marker.UsePicture) return {};
    return {window_.loadPicture(series.Marker.PicturePath),
            window_.loadPicture(series.Marker.MaskPicturePath)};
}

void PolarGraph::SaveGraph(const std::string& path) {
    try {
        writeGraphFile(path, plot_, own_.Comment);
    } catch (const RunTimeError& error) {
        host_.showBox({error.description, "", BoxIcon::Stop, BoxButtons::Ok});
    }
}

}  // namespace zg
