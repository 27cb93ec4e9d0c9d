#pragma once

#include <QWidget>

#include "platform/PolarGraphWidget.h"

namespace zg {

/// picGraph, the page: shows the drawing and passes pointer and keys on to the control.
class PageWidget : public QWidget {
 public:
    explicit PageWidget(PolarGraphWidget& owner);

    /// Pointer of the page by its number; 99 means the picture.
    void showPointer(std::int16_t pointer, const PicturePointer& icon);

    /// Shows the tools' shapes over the page; repaints only what has changed.
    void showShapes(const ChildSurfaces& surfaces);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

 private:
    struct Shapes {
        ChildSurface circle;
        ChildSurface select;
        ChildSurface rubber;
        ChildSurface crossH;
        ChildSurface crossV;
    };
    void paintShapes(QPainter& painter) const;
    void paintInvitation(QPainter& painter) const;

    PolarGraphWidget& owner_;
    Shapes shapes_;
};

/// The number of a key in the control's events: letters and digits by their upper-case character, others by
/// the usual virtual key codes, with those of the keypad for its keys; 0 for keys without one.
std::int16_t keyCodeOf(int key, bool onKeypad = false);

}  // namespace zg
