#pragma once

#include <QWidget>

#include "graph/control/PageLayout.h"
#include "platform/Pointers.h"

namespace zg {

class PolarGraphWidget;

/// picRulerH, picRulerV and the corner picRulerJ, which resets the drawing area on a left click and changes
/// the ruler mode on a right one. Dragging a ruler moves the page.
class RulerWidget : public QWidget {
 public:
    RulerWidget(PolarGraphWidget& owner, RulerPart part, QWidget* parent);

    void showTrackingLine(const ChildSurface& line);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

 private:
    PolarGraphWidget& owner_;
    RulerPart part_;
    ChildSurface line_;
};

}  // namespace zg
