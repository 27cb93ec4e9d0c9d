#pragma once

#include <functional>
#include <string>

#include "graph/render/Canvas.h"

namespace zg {

/// What the control needs from the window that shows it.
class ControlWindow {
 public:
    virtual ~ControlWindow() = default;

    /// The page's surface, valid until the next pageResized or pagePainted. Its size follows pageResized.
    virtual Canvas& pageCanvas() = 0;

    /// The page has a new size in pixels, at least 1 by 1; its content is repainted after the call.
    virtual void pageResized(int width, int height) = 0;

    /// Positions, sizes or visibility of child surfaces have changed.
    virtual void layoutChanged() = 0;

    /// Shapes of the tools, or the tracking lines of the rulers, have changed.
    virtual void shapesChanged() = 0;

    /// The rulers have to be repainted.
    virtual void rulersChanged() = 0;

    /// The present content of the page becomes its persistent picture, until the page gets another size or
    /// another picture.
    virtual void keepPicture() = 0;

    /// Shows the persistent picture again; false if there is none.
    virtual bool restorePicture() = 0;

    /// Displays what has been painted on the page.
    virtual void pagePainted() = 0;

    /// A property of the property store has a new value.
    virtual void propertyChanged() = 0;

    /// MousePointer or MouseIcon has changed.
    virtual void pointerChanged() = 0;

    /// A copy of that part of the painted page, one pixel per scale unit, without the tools' shapes; null for
    /// an empty part.
    virtual PicturePointer copyPage(const Rect& part) = 0;

    /// The same of a page of that many scale units a side that is not shown, but painted by the function.
    virtual PicturePointer paintPage(double side, const Rect& part,
                                     const std::function<void(Canvas&)>& paint) = 0;

    /// Replaces the contents of the clipboard by the picture.
    virtual void pictureToClipboard(const Picture& picture) = 0;

    /// Replaces the file by the picture as an uncompressed bitmap; raises the error of the file, which is
    /// then unchanged.
    virtual void saveBitmap(const Picture& picture, const std::string& path) = 0;

    /// Asks for a printer and, unless cancelled, has one page painted on it: a square of that many scale
    /// units, centred and as large as the paper allows. Raises 482, "Printer error".
    virtual void print(double side, const std::function<void(Canvas&)>& paint) = 0;

    virtual void showAbout(const std::string& title) = 0;

    /// lblTrackAngle has a new text; an empty one hides it.
    virtual void trackAngleChanged(const std::string& text) = 0;

    /// The picture in a file; null if the file does not exist or is not a picture.
    virtual PicturePointer loadPicture(const std::string& path) = 0;
};

}  // namespace zg
