// How the picture and the curves leave the control.

#include "base/RunTimeError.h"
#include "base/Text.h"
#include "graph/control/CurveSweep.h"
#include "graph/control/GraphFile.h"
#include "graph/control/PolarGraph.h"
#include "graph/frq/ModPolarGraph.h"
#include "graph/render/RedrawGraph.h"

namespace zg {

namespace {

constexpr const char* bitmapFilter = "Bitmap Files (*.bmp) | *.bmp;";

}  // namespace

/// The part of the page that a shape covers, as far as it lies on the page.
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
    window_.print(side, [this](Canvas& canvas) { paintOn(canvas); });
}

void PolarGraph::paintOn(Canvas& canvas) {
    PolarGeometry geometry;
    redrawFrame(settings_, polar_, modPolarGraph, canvas, geometry);
    for (std::int32_t i = 1; i <= plot_.Count(); ++i) {
        const GrapInfo& graph = plot_.Item(std::int64_t{i});
        if (!graph.Visible || graph.Step == 0) continue;  // one without a step never ends
        CurveSampler sampler(engine_, graph);
        CurvePainter painter(graph.Series, markerPictures(graph.Series), geometry);
        for (SweepAngles angles(graph); !angles.done(); angles.advance())
            painter.paint(canvas, sampler.at(angles.angle(), geometry));
        painter.finish(canvas);
    }
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
