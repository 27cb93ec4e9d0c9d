#include "graph/frq/ModPolarGraph.h"

namespace zg {

ModPolarGraph modPolarGraph;

FontRecord factoryLabelFont() { return {0, "Arial", 8, false, false}; }
FontRecord factoryDirectionFont() { return {0, "Arial", 8, true, false}; }
FontRecord factoryPercentFont() { return {0, "Arial", 7, false, false}; }
FontRecord factoryLegendFont() { return {0, "Arial", 7, false, false}; }

std::array<float, 6> factoryWindClassColor() {
    return {255.0F, 65280.0F, 16711680.0F, 65535.0F, 16776960.0F, 0.0F};
}

void fillFactoryStyle(ModPolarGraph& tables) {
    // A font with a name means that the configuration has been read: keep what the user chose.
    const bool fresh = tables.LabelFont.name.empty() && tables.LegendFont.name.empty();
    if (tables.LabelFont.name.empty()) tables.LabelFont = factoryLabelFont();
    if (tables.DirectionFont.name.empty()) tables.DirectionFont = factoryDirectionFont();
    if (tables.PercentFont.name.empty()) tables.PercentFont = factoryPercentFont();
    if (tables.LegendFont.name.empty()) tables.LegendFont = factoryLegendFont();
    if (!fresh) return;
    tables.WindClassColor = factoryWindClassColor();
    tables.GridLineColor = factoryGridLineColor;
}

}  // namespace zg
