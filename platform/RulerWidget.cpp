#include "platform/RulerWidget.h"

#include <QMouseEvent>

#include "graph/control/Rulers.h"
#include "platform/Errors.h"
#include "platform/PolarGraphWidget.h"

namespace zg {

namespace {

QString nameOf(RulerPart part) {
    switch (part) {
        case RulerPart::Top:
            return QStringLiteral("picRulerH");
        case RulerPart::Left:
            return QStringLiteral("picRulerV");
        case RulerPart::Corner:
            break;
    }
    return QStringLiteral("picRulerJ");
}

}  // namespace

RulerWidget::RulerWidget(PolarGraphWidget& owner, RulerPart part, QWidget* parent)
    : QWidget(parent), owner_(owner), part_(part) {
    setObjectName(nameOf(part));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(rulerCursor(part));
}

void RulerWidget::showTrackingLine(const ChildSurface& line) {
    if (line == line_) return;
    const auto area = [](const ChildSurface& at) { return QRect(at.left, at.top, at.width, at.height); };
    update(area(line_));
    line_ = line;
    update(area(line_));
}

void RulerWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QtCanvas canvas(painter, width(), height());
    if (part_ == RulerPart::Corner)
        paintRulerCorner(canvas);
    else
        paintRuler(canvas,
                   owner_.graph().rulerView(part_ == RulerPart::Top ? RulerSide::Top : RulerSide::Left));
    if (line_.visible)
        painter.fillRect(QRect(line_.left, line_.top, line_.width, line_.height), QColor(200, 0, 0));
}

void RulerWidget::mousePressEvent(QMouseEvent* event) {
    const bool left = event->button() == Qt::LeftButton;
    if (part_ != RulerPart::Corner) {
        if (left)
            owner_.graph().rulerPressed(static_cast<float>(event->position().x()),
                                        static_cast<float>(event->position().y()));
        return;
    }
    if (!left && event->button() != Qt::RightButton) return;
    guarded(owner_.host_, [this, left] { owner_.graph().cornerPressed(left ? leftButton : rightButton); })();
}

void RulerWidget::mouseMoveEvent(QMouseEvent* event) {
    if (part_ == RulerPart::Corner || !event->buttons().testFlag(Qt::LeftButton)) return;
    guarded(owner_.host_, [this, event] {
        owner_.graph().rulerDragged(static_cast<float>(event->position().x()),
                                    static_cast<float>(event->position().y()));
    })();
}

}  // namespace zg
