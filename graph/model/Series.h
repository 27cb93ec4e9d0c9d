#pragma once

#include <cstdint>
#include <string>

#include "base/Style.h"

namespace zg {

/// Line style of a curve.
struct Pen {
    bool AllowConVertices = true;  ///< join the points by lines
    bool AllowShading = false;     ///< fill between centre and curve
    Colour FillColor = rgb(0, 0, 255);
    std::int32_t Style = 0;
    std::int32_t Weight = 1;
};

struct MarkerFont {
    std::string Name = "Wingdings";
    float Size = 8;  ///< points
    bool Bold = false;
    bool Italic = false;
};

/// Marker style of a curve. Alignment is the sum of a horizontal flag (0 left, 1 right, 2 centre) and a
/// vertical one (4 top, 8 bottom, 16 centre).
struct Marker {
    static constexpr std::int32_t centred = 18;

    std::int32_t Alignment = centred;
    std::int32_t AutoSize = -1;  ///< -1 is true
    Colour FillColor = rgb(0, 0, 255);
    MarkerFont Font;
    std::int32_t GetHorizAlign = 2;
    std::int32_t GetVertAlign = 16;
    std::string MaskPicturePath;
    std::string PicturePath;
    std::int32_t PictureWidth = 16;
    std::int32_t PictureHeight = 16;
    std::string Style = "A";  ///< the marker's character
    bool Transparent = true;
    bool UsePicture = false;

    void SetPictureSize(std::int32_t width, std::int32_t height) {
        PictureWidth = width;
        PictureHeight = height;
    }

    /// Stores the sum and derives from it the two flags that drawing uses.
    void setAlignment(std::int32_t alignment) {
        Alignment = alignment;
        GetHorizAlign = alignment & 3;
        GetVertAlign = alignment & 28;
    }
};

struct Series {
    bool AllowMarker = false;
    bool AllowPen = true;
    zg::Marker Marker;
    zg::Pen Pen;
};

}  // namespace zg
