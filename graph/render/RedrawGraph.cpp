#include "graph/render/RedrawGraph.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "graph/render/Background.h"
#include "graph/render/CoordinateSystem.h"
#include "graph/render/Frame.h"
#include "graph/render/Legend.h"
#include "graph/render/PercentLabels.h"
#include "graph/render/RoseWords.h"
#include "graph/render/ShareNumbers.h"
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

bool hasBars(const ModPolarGraph& tables) { return tables.FrqLoaded && tables.FrqRoseCount > 0; }

/// Radius of the calm circle in polar units, 0 for none.
double calmUnits(const RoseStyle& style, const ModPolarGraph& tables) {
    if (!style.calmCircle || !hasBars(tables)) return 0;
    return calmShare(tables) * 100 / style.percentPerRing;
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
    const double inner = calmUnits(settings.Style, tables);
    geometry.UnitLength =
        unitLength(width, height, polar.Radius + static_cast<float>(inner), settings.AspectRatio);

    CanvasRecord written;
    RecordedCanvas watched(canvas, written);
    Canvas* target = &canvas;
    if (settings.Style.numbers) target = &watched;
    Frame frame{settings, polar, tables, *target, geometry, width, height, inner, startingTextStyle(tables)};
    if (tables.FrqLoaded && settings.ShowLegend) drawLegend(frame);
    drawTitleLines(frame);
    if (settings.ShowCoordinateSystem) {
        drawCoordinateSystem(frame);
        drawWindRose(frame);
    }
    if (settings.ShowLabel) drawPercentLabels(frame);
    if (tables.FrqRoseCount == 0) drawNoRoseNotice(frame);
    if (settings.Style.numbers && hasBars(tables)) drawShareNumbers(frame, written);
    canvas.keepPicture();
}

}  // namespace zg
