#include "graph/render/RedrawGraph.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "graph/render/Background.h"
#include "graph/render/CoordinateSystem.h"
#include "graph/render/Frame.h"
#include "graph/render/Legend.h"
#include "graph/render/PercentLabels.h"
#include "graph/render/TitleLines.h"
#include "graph/render/WindRose.h"

namespace zg {

namespace {

/// A file without roses shows a notice; font and slant are those of the text before it.
void drawNoRoseNotice(Frame& frame) {
    frame.textStyle.colour = black;
    frame.textStyle.size = 18;
    frame.textStyle.bold = true;
    frame.canvas.setTextPosition({frame.width / 3.75, frame.height / 1.9});
    frame.canvas.text(frame.tables.GraphCaption, frame.textStyle);
}

TextStyle startingTextStyle(const ModPolarGraph& tables) {
    TextStyle style = textStyleOf(tables.PlotFont);
    style.colour = tables.PlotForeColor;
    return style;
}

}  // namespace

void placeCentre(Origin& origin, std::int16_t zoom, double width, double height, PolarGeometry& geometry) {
    if (origin.Auto) {
        origin.SetPos(0, 0);
        geometry.OriginOffsetX = 0;
        geometry.OriginOffsetY = 0;
    } else {
        geometry.OriginOffsetX = toSingle(zoom * 0.01 * static_cast<double>(origin.X));
        geometry.OriginOffsetY = toSingle(-(zoom * 0.01 * static_cast<double>(origin.Y)));
    }
    geometry.CentreX = toSingle(width / 2 + static_cast<double>(geometry.OriginOffsetX));
    geometry.CentreY = toSingle(height / 2 + static_cast<double>(geometry.OriginOffsetY));
}

float unitLength(double width, double height, float radius, float aspectRatio) {
    if (radius == 0 || aspectRatio == 0) raise(ErrorNumber::DivisionByZero);
    return toSingle(std::min(width / 2, height / 2) / static_cast<double>(radius) /
                    static_cast<double>(aspectRatio));
}

void redrawFrame(const PlotSettings& settings, Polar& polar, ModPolarGraph& tables, Canvas& canvas,
                 PolarGeometry& geometry) {
    const double width = canvas.width();
    const double height = canvas.height();
    canvas.clear(settings.BackColor);
    if (settings.Picture) drawBackground(canvas, settings.Picture, settings.PictureStyle);
    placeCentre(polar.Origin, settings.Zoom, width, height, geometry);
    geometry.UnitLength = unitLength(width, height, polar.Radius, settings.AspectRatio);

    Frame frame{settings, polar, tables, canvas, geometry, width, height, startingTextStyle(tables)};
    if (tables.FrqLoaded && settings.ShowLegend) drawLegend(frame);
    drawTitleLines(frame);
    if (settings.ShowCoordinateSystem) {
        drawCoordinateSystem(frame);
        drawWindRose(frame);
    }
    if (settings.ShowLabel) drawPercentLabels(frame);
    if (tables.FrqRoseCount == 0) drawNoRoseNotice(frame);
    canvas.keepPicture();
}

}  // namespace zg
