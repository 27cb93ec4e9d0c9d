#include "graph/render/Panel.h"

#include <algorithm>
#include <string_view>

#include "base/Encoding.h"
#include "graph/render/Legend.h"
#include "graph/render/PartCanvas.h"
#include "graph/render/RedrawGraph.h"
#include "graph/render/SpeedUnits.h"

namespace zg {

namespace {

constexpr double roseSide = 300;     // units of a rose's own square
constexpr double panelRatio = 1.35;  // a cell has no legend, so its rose can be larger than a page's
constexpr double lineHeight = 13;
constexpr double narrowPage = 600;  // below this, title and legend shrink with the page
constexpr double titleHeight = 30;
constexpr double legendHeight = 62;
constexpr double sideMargin = 4;  // between a title and its neighbour
constexpr std::string_view ellipsis = "...";

TextStyle panelStyle(const FontRecord& font, bool bold) {
    return {font.name, static_cast<double>(font.size), bold, font.italic, paintedColour(font.colour)};
}

/// The length of the UTF-8 text's first whole letters, at most that many bytes.
std::size_t wholeLetters(const std::string& text, std::size_t most) {
    while (most > 0 && most < text.size() && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U)
        --most;
    return most;
}

/// The longest begin of the UTF-8 text that is no wider than the room with an ellipsis after it, at least one
/// letter.
std::string cutToFit(const Canvas& canvas, const std::string& text, const TextStyle& style, double room) {
    std::size_t fits = 0;
    for (std::size_t tooLong = text.size(); tooLong > fits + 1;) {
        const std::size_t middle = fits + (tooLong - fits) / 2;
        std::string begin = text.substr(0, wholeLetters(text, middle));
        begin += ellipsis;
        (canvas.measure(begin, style).width > room ? tooLong : fits) = middle;
    }
    std::size_t length = wholeLetters(text, fits);
    for (std::size_t first = 1; length == 0; ++first)
        if (wholeLetters(text, first) == first) length = first;
    std::string fitting = text.substr(0, length);
    return fitting += ellipsis;
}

/// A text that is too wide becomes smaller, by a third at most; one that is wider still loses its end.
void writeCentred(Canvas& canvas, double y, const std::string& text, TextStyle style) {
    constexpr double smallest = 2.0 / 3;
    const double room = canvas.width() - 2 * sideMargin;
    std::string fitting = toUtf8(text);
    double width = canvas.measure(fitting, style).width;
    if (width > room) {
        style.size *= std::max(smallest, room / width);
        width = canvas.measure(fitting, style).width;
    }
    if (width > room && fitting.size() > ellipsis.size() + 1) {
        fitting = cutToFit(canvas, fitting, style, room);
        width = canvas.measure(fitting, style).width;
    }
    canvas.setTextPosition({(canvas.width() - width) / 2, y});
    canvas.text(fitting, style);
}

void drawCell(Canvas& canvas, const Rect& cell, double scale, const PanelRose& rose) {
    const CanvasGroup group(canvas, "rose");
    const double height = (cell.bottom - cell.top) / scale;
    PartCanvas whole(canvas, {cell.left, cell.top}, roseSide, height, scale);
    PartCanvas square(canvas, {cell.left, cell.top + (height - roseSide) * scale}, roseSide, roseSide, scale);
    PlotSettings settings;
    settings.ShowLegend = false;
    settings.AspectRatio = static_cast<float>(panelRatio);
    settings.Style = rose.style;
    ModPolarGraph tables = rose.tables;
    tables.GraphTitle = tables.GraphSubTitle = tables.GraphCaption = "";
    Polar polar = rose.polar;
    PolarGeometry geometry;
    redrawFrame(settings, polar, tables, square, geometry);
    double y = lineHeight / 2;
    for (std::size_t i = 0; i < rose.titles.size(); ++i, y += lineHeight)
        writeCentred(whole, y, rose.titles[i], panelStyle(tables.LabelFont, i == 0));
}

void drawSharedLegend(Canvas& canvas, const PanelRose& rose) {
    const CanvasGroup group(canvas, "legend");
    constexpr int perRow = 3;
    constexpr double rowHeight = 16;
    constexpr double swatchHeight = 9;
    constexpr double swatchWidth = 34;
    const SpeedLimits limits = speedLimits(rose.tables, rose.style.unit);
    const TextStyle style = panelStyle(rose.tables.LegendFont, false);
    const double column = std::min(canvas.width() / perRow, 200.0);
    const double left = (canvas.width() - perRow * column) / 2 + column * 0.1;
    const double markWidth = rose.style.calmCircle ? swatchHeight * 1.5 : 0;
    if (rose.style.calmCircle)
        paintCalmMark(canvas, {left + swatchHeight / 2, 2 + swatchHeight * 0.7}, swatchHeight);
    canvas.setTextPosition({left + markWidth, 2});
    canvas.text("Calm Winds [<" + limits.limits[0] + " " + limits.unit + "]: below each title", style);
    for (int c = 1; c <= speedClasses; ++c) {
        const double x = left + column * ((c - 1) % perRow);
        const double y = 2 + rowHeight * (1 + (c - 1) / perRow);
        paintSwatch(canvas, {x, y + 1, x + swatchWidth, y + 1 + swatchHeight}, rose.tables, rose.style, c);
        canvas.setTextPosition({x + swatchWidth, y});
        canvas.text("  =  " + classWords(limits, c), style);
    }
}

}  // namespace

PanelLayout panelLayout(double width, int columns, int rows, int titleLines, bool pageTitle) {
    PanelLayout layout;
    layout.width = width;
    layout.scale = std::min(1.0, width / narrowPage);
    const double cellWidth = width / columns;
    layout.roseScale = cellWidth / roseSide;
    const double cellHeight = layout.roseScale * (roseSide + titleLines * lineHeight);
    const double top = pageTitle ? titleHeight * layout.scale : 0;
    layout.title = {0, 0, width, top};
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            layout.cells.push_back({column * cellWidth, top + row * cellHeight, (column + 1) * cellWidth,
                                    top + (row + 1) * cellHeight});
    const double bottom = top + rows * cellHeight;
    layout.height = bottom + legendHeight * layout.scale;
    layout.legend = {0, bottom, width, layout.height};
    return layout;
}

void drawPanel(Canvas& canvas, const PanelLayout& layout, const std::vector<PanelRose>& roses,
               const std::string& title) {
    canvas.clear(white);
    if (roses.empty()) return;
    if (layout.title.bottom > layout.title.top) {
        PartCanvas part(canvas, {0, 0}, layout.width / layout.scale, titleHeight, layout.scale);
        TextStyle style = panelStyle(roses[0].tables.LabelFont, true);
        style.size += 2;
        writeCentred(part, titleHeight / 3, title, style);
    }
    for (std::size_t i = 0; i < std::min(roses.size(), layout.cells.size()); ++i)
        drawCell(canvas, layout.cells[i], layout.roseScale, roses[i]);
    PartCanvas legend(canvas, {0, layout.legend.top}, layout.width / layout.scale, legendHeight,
                      layout.scale);
    drawSharedLegend(legend, roses[0]);
}

}  // namespace zg
