#pragma once

// Many roses on one page, each with its title, and one legend for all.

#include <string>
#include <vector>

#include "graph/frq/ModPolarGraph.h"
#include "graph/model/Polar.h"
#include "graph/render/Canvas.h"
#include "graph/render/RoseStyle.h"

namespace zg {

/// A rose of a panel: its tables, its rings and style, and its title lines (the first one bold).
struct PanelRose {
    ModPolarGraph tables;
    Polar polar;
    RoseStyle style;
    std::vector<std::string> titles;
};

/// Positions on a panel of that width; its height follows from the rows.
struct PanelLayout {
    double width = 0;
    double height = 0;
    double scale = 1;         ///< scale of title and legend
    double roseScale = 1;     ///< scale of the roses, which are drawn on squares of 300 units
    Rect title;               ///< no height if the page has none
    std::vector<Rect> cells;  ///< row by row
    Rect legend;
};

/// Each cell has room for this many title lines above its rose.
PanelLayout panelLayout(double width, int columns, int rows, int titleLines, bool pageTitle);

/// Draws as many roses as the layout has cells, in their order; the legend is that of the first.
void drawPanel(Canvas& canvas, const PanelLayout& layout, const std::vector<PanelRose>& roses,
               const std::string& title);

}  // namespace zg
