#pragma once

// The colours that mark an invalid field. Invalid is yellowMark, valid is cleanMark; these functions are the
// changes between them.

#include <string_view>

#include "base/Style.h"

namespace zg {

/// Background of a field that is being disabled: a mark remains as a darker yellow.
constexpr Colour disabledMark(Colour background) {
    return background == yellowMark ? darkYellowMark : buttonFaceColour;
}

/// Background of a field that is being enabled: such a mark is restored.
constexpr Colour enabledMark(Colour background) {
    return background == darkYellowMark ? yellowMark : cleanMark;
}

/// Background of a field after an entry: the mark disappears once there is text, even blanks.
constexpr Colour filledMark(Colour background, std::string_view text) {
    return background == yellowMark && !text.empty() ? cleanMark : background;
}

}  // namespace zg
