#pragma once

#include <QWidget>

#include "platform/PolarGraphWidget.h"

namespace zg {

/// picGraph, the page: shows the drawing and passes the pointer and the keys on to the control.
class PageWidget : public QWidget {
 public:
    explicit PageWidget(PolarGraphWidget& owner);

    /// Pointer of the page by its number; 99 takes the picture.
    void showPointer(std::int16_t pointer, const PicturePointer& icon);

    /// Shows the tools' shapes over the page; only what changed is painted again.
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

    PolarGraphWidget& owner_;
    Shapes shapes_;
};

/// A key's number as the control's events give it: letters and digits by their upper-case character, others
/// by the usual virtual key codes, those of the
/// keypad where they are pressed there; 0 for keys without one.
std::int16_t keyCodeOf(int key, bool onKeypad = false);

}  // namespace zg
