#pragma once

#include <QWidget>

namespace zg {

class PolarGraphWidget;

enum class RulerPart { Top, Left, Corner };

/// picRulerH, picRulerV and the corner picRulerJ, which resets the drawing area on a left click and changes
/// the ruler mode on a right one.
class RulerWidget : public QWidget {
 public:
    RulerWidget(PolarGraphWidget& owner, RulerPart part, QWidget* parent);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

 private:
    PolarGraphWidget& owner_;
    RulerPart part_;
};

}  // namespace zg
