#include "graph/render/Frame.h"

#include "base/Numbers.h"

namespace zg {

TextStyle textStyleOf(const FontRecord& font) {
    return {font.name, static_cast<double>(font.size), font.bold, font.italic, paintedColour(font.colour)};
}

int wholeUnits(const Polar& polar) { return toInt16(intFloor(static_cast<double>(polar.Radius))); }

}  // namespace zg
