#include "platform/NativePicks.h"

namespace zg {

bool hasNativePicks() { return false; }

std::optional<Colour> nativeColour(Colour, QWidget*) { return {}; }

std::optional<FontRecord> nativeFont(const FontRecord&, QWidget*) { return {}; }

}  // namespace zg
