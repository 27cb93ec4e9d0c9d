#include "graph/render/Background.h"

#include "base/Numbers.h"
#include "base/RunTimeError.h"

namespace zg {

namespace {

Rect placeAt(double left, double top, double width, double height) {
    return {left, top, left + width, top + height};
}

/// One copy more than fits, as a whole number.
int copies(double surface, double picture) {
    if (picture == 0) raise(ErrorNumber::DivisionByZero);
    return toInt16(surface / picture + 1);
}

}  // namespace

std::vector<Rect> backgroundPlaces(double width, double height, double pictureWidth, double pictureHeight,
                                   std::int32_t pictureStyle) {
    switch (pictureStyle) {
        case 0:
            return {placeAt(0, 0, pictureWidth, pictureHeight)};
        case 1:
            return {placeAt((width - pictureWidth) / 2, (height - pictureHeight) / 2, pictureWidth,
                            pictureHeight)};
        case 2:
            return {placeAt(0, 0, width, height)};
        default:
            break;
    }
    const int columns = copies(width, pictureWidth);
    const int rows = copies(height, pictureHeight);
    std::vector<Rect> places;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            places.push_back(
                placeAt(column * pictureWidth, row * pictureHeight, pictureWidth, pictureHeight));
    return places;
}

void drawBackground(Canvas& canvas, const PicturePointer& picture, std::int32_t pictureStyle) {
    for (const Rect& place :
         backgroundPlaces(canvas.width(), canvas.height(), picture->width(), picture->height(), pictureStyle))
        canvas.blit(picture, place);
}

}  // namespace zg
