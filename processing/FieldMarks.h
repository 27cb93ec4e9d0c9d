#pragma once

// The colours by which a field shows that it is in error. Invalid is yellowMark, valid is cleanMark; these
// are the changes between them.

#include <string_view>

#include "base/Style.h"

namespace zg {

/// Background of a field that is being disabled: a mark survives in a darker yellow.
constexpr Colour disabledMark(Colour background) {
    return background == yellowMark ? darkYellowMark : buttonFaceColour;
}

/// Background of a field that is being enabled: a mark that survived comes back.
constexpr Colour enabledMark(Colour background) {
    return background == darkYellowMark ? yellowMark : cleanMark;
}

/// Background of a field after an entry: the mark goes once there is text, blanks included.
constexpr Colour filledMark(Colour background, std::string_view text) {
    return background == yellowMark && !text.empty() ? cleanMark : background;
}

}  // namespace zg
