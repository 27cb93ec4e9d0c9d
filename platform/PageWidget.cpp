#include "platform/PageWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <array>
#include <utility>

#include "platform/Errors.h"
#include "platform/Pointers.h"

namespace zg {

namespace {

constexpr std::int16_t customPointer = 99;

std::int16_t buttonNumber(Qt::MouseButtons buttons) {
    std::int16_t number = 0;
    if (buttons.testFlag(Qt::LeftButton)) number |= 1;
    if (buttons.testFlag(Qt::RightButton)) number |= 2;
    if (buttons.testFlag(Qt::MiddleButton)) number |= 4;
    return number;
}

std::int16_t shiftState(Qt::KeyboardModifiers modifiers) {
    std::int16_t state = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) state |= 1;
    if (modifiers.testFlag(Qt::ControlModifier)) state |= 2;
    if (modifiers.testFlag(Qt::AltModifier)) state |= 4;
    return state;
}

std::int16_t keyCodeOf(const QKeyEvent& event) {
    return zg::keyCodeOf(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

Qt::CursorShape shapeOf(std::int16_t pointer) {
    constexpr std::array<std::pair<std::int16_t, Qt::CursorShape>, 9> shapes = {{{1, Qt::ArrowCursor},
                                                                                 {2, Qt::CrossCursor},
                                                                                 {3, Qt::IBeamCursor},
                                                                                 {5, Qt::SizeAllCursor},
                                                                                 {6, Qt::SizeBDiagCursor},
                                                                                 {7, Qt::SizeVerCursor},
                                                                                 {8, Qt::SizeFDiagCursor},
                                                                                 {9, Qt::SizeHorCursor},
                                                                                 {11, Qt::WaitCursor}}};
    for (const auto& [number, shape] : shapes)
        if (number == pointer) return shape;
    return Qt::ArrowCursor;
}

}  // namespace

std::int16_t keyCodeOf(int key, bool onKeypad) {
    using Codes = std::initializer_list<std::pair<int, std::int16_t>>;
    static constexpr Codes keypad = {
        {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107}, {Qt::Key_Minus, 109}, {Qt::Key_Slash, 111}};
    // "+" and "=" are one key, "-" and "_" another.
    static constexpr Codes codes = {
        {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Return, 13},     {Qt::Key_Enter, 13},
        {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},        {Qt::Key_AltGr, 18},
        {Qt::Key_Escape, 27},   {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34},   {Qt::Key_End, 35},
        {Qt::Key_Home, 36},     {Qt::Key_Left, 37},    {Qt::Key_Up, 38},         {Qt::Key_Right, 39},
        {Qt::Key_Down, 40},     {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},     {Qt::Key_Plus, 187},
        {Qt::Key_Equal, 187},   {Qt::Key_Minus, 189},  {Qt::Key_Underscore, 189}};
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
        key == Qt::Key_Space)
        return static_cast<std::int16_t>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return static_cast<std::int16_t>(112 + key - Qt::Key_F1);
    if (onKeypad)
        for (const auto& [qtKey, code] : keypad)
            if (qtKey == key) return code;
    for (const auto& [qtKey, code] : codes)
        if (qtKey == key) return code;
    return 0;
}

PageWidget::PageWidget(PolarGraphWidget& owner) : QWidget(&owner), owner_(owner) {
    setObjectName(QStringLiteral("picGraph"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Wind rose"));
}

void PageWidget::showPointer(std::int16_t pointer, const PicturePointer& icon) {
    if (pointer != customPointer || !icon) {
        setCursor(shapeOf(pointer));
        return;
    }
    setCursor(cursorOf(*icon));
}

void PageWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QImage& page = owner_.pageImage();
    const QRectF shownPart = event->rect();
    const double scale = page.devicePixelRatio();
    painter.drawImage(shownPart, page, QRectF(shownPart.topLeft() * scale, shownPart.size() * scale));
    paintShapes(painter);
    paintInvitation(painter);
}

void PageWidget::paintInvitation(QPainter& painter) const {
    if (owner_.invitation().isEmpty()) return;
    const QColor grey(96, 96, 96);
    painter.setPen(grey);
    painter.drawText(QRect(0, height() / 40, width(), height() / 12),
                     Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextWordWrap, owner_.invitation());
}

void PageWidget::showShapes(const ChildSurfaces& surfaces) {
    const auto exchange = [this](ChildSurface& old, const ChildSurface& fresh) {
        if (old == fresh) return;
        for (const ChildSurface& at : {old, fresh})
            if (at.visible) update(at.left - 1, at.top - 1, at.width + 3, at.height + 3);
        old = fresh;
    };
    exchange(shapes_.circle, surfaces.shpCircle);
    exchange(shapes_.select, surfaces.shpSelect);
    exchange(shapes_.rubber, surfaces.shpRubber);
    exchange(shapes_.crossH, surfaces.linCrossH);
    exchange(shapes_.crossV, surfaces.linCrossV);
}

void PageWidget::paintShapes(QPainter& painter) const {
    const auto box = [](const ChildSurface& at) {
        return QRect(at.left, at.top, at.width - 1, at.height - 1);
    };
    const QColor shapeColour(90, 90, 90);
    for (const ChildSurface* line : {&shapes_.crossH, &shapes_.crossV})
        if (line->visible) painter.fillRect(line->left, line->top, line->width, line->height, shapeColour);
    if (shapes_.circle.visible) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(shapeColour);
        painter.drawEllipse(QRectF(box(shapes_.circle)).translated(0.5, 0.5));
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    for (const ChildSurface* rectangle : {&shapes_.select, &shapes_.rubber}) {
        if (!rectangle->visible) continue;
        // Dashes over a white line are visible on any colour.
        painter.setPen(Qt::white);
        painter.drawRect(box(*rectangle));
        painter.setPen(QPen(Qt::black, 1, rectangle == &shapes_.rubber ? Qt::DotLine : Qt::DashLine));
        painter.drawRect(box(*rectangle));
    }
}

void PageWidget::leaveEvent(QEvent*) { owner_.graph_->pointerLeft(); }

void PageWidget::mousePressEvent(QMouseEvent* event) {
    guarded(owner_.host_, [this, event] {
        owner_.graph_->mouseDown(buttonNumber(event->button()), shiftState(event->modifiers()),
                                 static_cast<float>(event->position().x()),
                                 static_cast<float>(event->position().y()));
    })();
}

void PageWidget::mouseMoveEvent(QMouseEvent* event) {
    guarded(owner_.host_, [this, event] {
        owner_.graph_->mouseMove(buttonNumber(event->buttons()), shiftState(event->modifiers()),
                                 static_cast<float>(event->position().x()),
                                 static_cast<float>(event->position().y()));
    })();
}

void PageWidget::mouseReleaseEvent(QMouseEvent* event) {
    guarded(owner_.host_, [this, event] {
        owner_.graph_->mouseUp(buttonNumber(event->button()), shiftState(event->modifiers()),
                               static_cast<float>(event->position().x()),
                               static_cast<float>(event->position().y()));
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) &&
            owner_.graph_->events.Click)
            owner_.graph_->events.Click();
    })();
}

void PageWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (owner_.graph_->events.DblClick) guarded(owner_.host_, [this] { owner_.graph_->events.DblClick(); })();
}

void PageWidget::keyPressEvent(QKeyEvent* event) {
    guarded(owner_.host_, [this, event] {
        const PolarGraphEvents& events = owner_.graph_->events;
        std::int16_t code = keyCodeOf(*event);
        if (events.KeyDown) events.KeyDown(code, shiftState(event->modifiers()));
        constexpr std::int16_t escape = 27;
        if (code == escape) owner_.graph_->cancelTool();  // unless the host has used the key
        const QByteArray characters = event->text().toLatin1();
        for (const char character : characters) {
            std::int16_t ascii = static_cast<unsigned char>(character);
            if (events.KeyPress) events.KeyPress(ascii);
        }
    })();
    event->ignore();  // keys that the control does not use go to the window
}

void PageWidget::keyReleaseEvent(QKeyEvent* event) {
    guarded(owner_.host_, [this, event] {
        std::int16_t code = keyCodeOf(*event);
        if (owner_.graph_->events.KeyUp) owner_.graph_->events.KeyUp(code, shiftState(event->modifiers()));
    })();
    event->ignore();
}

}  // namespace zg
