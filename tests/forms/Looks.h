#pragma once

namespace zg {

/// Fonts of the desktop for all forms that are made from now on, as a multiple of the usual size.
void enlargeFonts(double factor);

/// Colours of a dark desktop theme for all forms.
void takeDarkTheme();

/// The usual fonts and colours again.
void resetLooks();

}  // namespace zg
