#include "platform/FocusMoves.h"

#include <QKeyEvent>

#include "platform/Errors.h"

namespace zg {

namespace {

class EnterIsTab : public QObject {
 public:
    explicit EnterIsTab(QWidget& field) : QObject(&field), field_(field) { field.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        if (QWidget* next = field_.nextInFocusChain()) next->setFocus(Qt::TabFocusReason);
        return true;
    }

 private:
    QWidget& field_;
};

class FocusLeft : public QObject {
 public:
    FocusLeft(Host& host, QWidget& field, std::function<void()> action)
        : QObject(&field), host_(host), action_(std::move(action)) {
        field.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusOut) guarded(host_, action_)();
        return false;
    }

 private:
    Host& host_;
    std::function<void()> action_;
};

}  // namespace

void enterIsTab(QWidget& field) { new EnterIsTab(field); }

void whenLeft(Host& host, QWidget& field, std::function<void()> action) {
    new FocusLeft(host, field, std::move(action));
}

}  // namespace zg
