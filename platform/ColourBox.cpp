#include "platform/ColourBox.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

#include "platform/Errors.h"
#include "platform/QtText.h"

namespace zg {

ColourBox::ColourBox(Colour colour, QWidget* parent) : QPushButton(parent), colour_(colour) {
    setFixedSize(40, 22);
    setToolTip(QStringLiteral("Click to choose another color"));
}

void ColourBox::setColour(Colour colour) {
    colour_ = colour;
    update();
}

void ColourBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(toQColor(colour_));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void ColourBox::asks(Host& host, QPushButton* beside, std::function<void(Colour)> chosen) {
    const auto ask = guarded(host, [this, &host, chosen = std::move(chosen)] {
        const auto picked = host.pickColour(colour_);
        if (!picked) return;
        setColour(*picked);
        chosen(*picked);
    });
    connect(this, &QPushButton::clicked, this, ask);
    if (beside != nullptr) connect(beside, &QPushButton::clicked, this, ask);
}

}  // namespace zg
