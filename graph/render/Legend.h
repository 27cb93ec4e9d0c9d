#pragma once

#include <array>
#include <string>

#include "graph/render/Frame.h"

namespace zg {

/// The legend's geometry: the lower right corner of the surface, whatever the zoom.
struct LegendLayout {
    struct Row {
        Rect swatch;
        Point text;
    };
    Rect box;
    Point calmLine;
    std::array<Row, 6> rows;  ///< speed classes 1 to 6
};

LegendLayout legendLayout(double width, double height);

/// The calm line for a calm threshold as given in the table.
std::string calmLineText(const std::string& limit, const std::string& unit, const std::string& calmPercent);

/// The line of speed class 1 to 6, from the limits of the classes; raises 9 for a missing limit.
std::string classLineText(const Table<std::string>& limits, int speedClass, const std::string& unit);

/// Fills the swatch of a class 1 to 6 in its colour, with its pattern where the style has one.
void paintSwatch(Canvas& canvas, const Rect& swatch, const ModPolarGraph& tables, const RoseStyle& style,
                 int speedClass);

/// The calm circle's mark, as wide as it is high.
void paintCalmMark(Canvas& canvas, Point centre, double width);

/// Rebuilds LegendClassLimit and draws the legend with it.
void drawLegend(Frame& frame);

}  // namespace zg
