#include "graph/render/Frame.h"

#include <algorithm>

#include "base/Numbers.h"

namespace zg {

TextStyle textStyleOf(const FontRecord& font) {
    return {font.name, static_cast<double>(font.size), font.bold, font.italic, paintedColour(font.colour)};
}

TextStyle lineStyleOf(const FontRecord& font, const PlotSettings& settings) {
    constexpr std::int16_t fullZoom = 100;
    TextStyle style = textStyleOf(font);
    if (settings.Style.shrinkTexts && settings.Zoom < fullZoom)
        style.size *= std::max<int>(settings.Zoom, 0) * 0.01;
    return style;
}

int wholeUnits(const Polar& polar) { return toInt16(intFloor(static_cast<double>(polar.Radius))); }

}  // namespace zg
