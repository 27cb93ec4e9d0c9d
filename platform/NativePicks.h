#pragma once

#include <optional>

#include "base/Style.h"

class QWidget;

namespace zg {

/// Whether dialogs are the system's own; those for colours and fonts are here, as the toolkit does not use
/// them.
bool hasNativePicks();

/// Those dialogs, over the window; they start with the given choice. Nothing if cancelled. No other window of
/// the program reacts meanwhile.
std::optional<Colour> nativeColour(Colour current, QWidget* window);
std::optional<FontRecord> nativeFont(const FontRecord& current, QWidget* window);

}  // namespace zg
