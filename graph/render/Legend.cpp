#include "graph/render/Legend.h"

#include "base/Text.h"
#include "graph/frq/ClassLimits.h"
#include "graph/render/Hatch.h"
#include "graph/render/SpeedUnits.h"

namespace zg {

namespace {

/// Makes LegendClassLimit for the unit and gives its word.
std::string readyLimits(ModPolarGraph& tables, SpeedUnit unit) {
    if (unit == SpeedUnit::AsChosen) return rebuildLegendLimits(tables);
    const SpeedLimits found = speedLimits(tables, unit);
    tables.LegendClassLimit.assign({found.limits.begin(), found.limits.end()});
    return found.unit;
}

/// Draws the calm circle's mark before the calm line and gives the line's place after it.
Point markedCalmLine(Frame& frame, const LegendLayout& layout) {
    const double side = layout.rows[0].swatch.bottom - layout.rows[0].swatch.top;
    const Point at = layout.calmLine;
    paintCalmMark(frame.canvas, {at.x + side / 2, at.y + 0.8 * side}, side);
    return {at.x + 1.5 * side, at.y};
}

}  // namespace

LegendLayout legendLayout(double width, double height) {
    LegendLayout layout;
    layout.box = {width - width / 3.25, height - height / 5, width, height};
    const double boxHeight = layout.box.bottom - layout.box.top;
    const double boxWidth = layout.box.right - layout.box.left;
    const double margin = boxHeight / 20;
    const double rowHeight = boxHeight / 15;
    const double left = margin + layout.box.left;
    const double swatchRight = left + boxWidth / 5;
    layout.calmLine = {left, margin + layout.box.top};
    double y = layout.box.top + 2 * rowHeight;
    for (LegendLayout::Row& row : layout.rows) {
        const double top = margin + y;
        y = top + rowHeight;
        row.swatch = {left, top, swatchRight, y};
        row.text = {swatchRight, top};
    }
    return layout;
}

std::string calmLineText(const std::string& limit, const std::string& unit, const std::string& calmPercent) {
    return "Calm Winds [<" + trim(limit) + " " + unit + "] = " + calmPercent + "%";
}

std::string classLineText(const Table<std::string>& limits, int speedClass, const std::string& unit) {
    const std::string lower = "  =  " + trim(limits(speedClass));
    if (speedClass == 6) return lower + "+ " + unit;
    return lower + " to " + trim(limits(speedClass + 1)) + " " + unit;
}

void paintSwatch(Canvas& canvas, const Rect& swatch, const ModPolarGraph& tables, const RoseStyle& style,
                 int speedClass) {
    const Colour fill = paintedColour(tables.WindClassColor[static_cast<std::size_t>(speedClass - 1)]);
    canvas.fillRectangle(swatch, fill);
    if (style.hatch) drawHatch(canvas, hatchOfRectangle(swatch, speedClass), hatchColour(fill));
}

void paintCalmMark(Canvas& canvas, Point centre, double width) {
    canvas.disc(centre, width / 2, calmColour, scrollBarColour);
}

void drawLegend(Frame& frame) {
    ModPolarGraph& tables = frame.tables;
    const CanvasGroup group(frame.canvas, "legend");
    const std::string unit = readyLimits(tables, frame.settings.Style.unit);
    const Table<std::string>& limits = tables.LegendClassLimit;
    const LegendLayout layout = legendLayout(frame.width, frame.height);
    frame.textStyle = lineStyleOf(tables.LegendFont, frame.settings);
    frame.canvas.fillRectangle(layout.box, white);
    frame.canvas.setTextPosition(frame.innerUnits > 0 ? markedCalmLine(frame, layout) : layout.calmLine);
    if (tables.FrqRoseCount > 0)
        frame.canvas.text(calmLineText(limits(0), unit, tables.FrqCalmPercent(tables.CurrentRose)),
                          frame.textStyle);
    for (int i = 1; i <= 6; ++i) {
        const LegendLayout::Row& row = layout.rows[static_cast<std::size_t>(i - 1)];
        paintSwatch(frame.canvas, row.swatch, tables, frame.settings.Style, i);
        frame.canvas.setTextPosition(row.text);
        frame.canvas.text(classLineText(limits, i, unit), frame.textStyle);
    }
}

}  // namespace zg
