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
}

void RulerWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QtCanvas canvas(painter, width(), height());
    if (part_ == RulerPart::Corner)
        paintRulerCorner(canvas);
    else
        paintRuler(canvas,
                   owner_.graph().rulerView(part_ == RulerPart::Top ? RulerSide::Top : RulerSide::Left));
}

void RulerWidget::mousePressEvent(QMouseEvent* event) {
    if (part_ != RulerPart::Corner) return;
    const bool left = event->button() == Qt::LeftButton;
    if (!left && event->button() != Qt::RightButton) return;
    guarded(owner_.host_, [this, left] { owner_.graph().cornerPressed(left ? leftButton : rightButton); })();
}

}  // namespace zg
