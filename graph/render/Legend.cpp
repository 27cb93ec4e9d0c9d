#include "graph/render/Legend.h"

#include "base/Text.h"
#include "graph/frq/ClassLimits.h"

namespace zg {

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

void drawLegend(Frame& frame) {
    ModPolarGraph& tables = frame.tables;
    const std::string unit = rebuildLegendLimits(tables);
    const Table<std::string>& limits = tables.LegendClassLimit;
    const LegendLayout layout = legendLayout(frame.width, frame.height);
    frame.textStyle = textStyleOf(tables.LegendFont);
    frame.canvas.fillRectangle(layout.box, white);
    frame.canvas.setTextPosition(layout.calmLine);
    if (tables.FrqRoseCount > 0)
        frame.canvas.text(calmLineText(limits(0), unit, tables.FrqCalmPercent(tables.CurrentRose)),
                          frame.textStyle);
    for (int i = 1; i <= 6; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        const LegendLayout::Row& row = layout.rows[at];
        frame.canvas.fillRectangle(row.swatch, paintedColour(tables.WindClassColor[at]));
        frame.canvas.setTextPosition(row.text);
        frame.canvas.text(classLineText(limits, i, unit), frame.textStyle);
    }
}

}  // namespace zg
