#include "platform/KeyFilter.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "platform/QtText.h"

namespace zg {

namespace {

class TypedKeys : public QObject {
 public:
    TypedKeys(QLineEdit& box, KeyFunction function)
        : QObject(&box), box_(box), function_(std::move(function)) {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) return drops(static_cast<const QKeyEvent&>(*event));
        if (event->type() == QEvent::InputMethod)
            return replaces(static_cast<const QInputMethodEvent&>(*event));
        return false;
    }

 private:
    bool drops(const QKeyEvent& key) const {
        return !key.text().isEmpty() && !isCommand(key) && !passes(key.text());
    }

    /// Keys that operate the box or the dialog, whatever the box may contain. On some desktops Delete comes
    /// with a character of its own.
    static bool isCommand(const QKeyEvent& key) {
        if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab || key.key() == Qt::Key_Escape ||
            key.key() == Qt::Key_Delete)
            return true;
        // Ctrl and Alt together are the AltGr key of some desktops, which types characters.
        return key.modifiers().testFlag(Qt::ControlModifier) != key.modifiers().testFlag(Qt::AltModifier);
    }

    bool passes(const QString& text) const {
        for (const char byte : typed(text))
            if (function_(static_cast<unsigned char>(byte)) == 0) return false;
        return true;
    }

    /// Characters that are composed from several keys, or chosen on an on-screen keyboard, arrive as one
    /// text.
    bool replaces(const QInputMethodEvent& event) {
        QString kept;
        for (const char32_t point : event.commitString().toUcs4()) {
            const QString character = QString::fromUcs4(&point, 1);
            if (passes(character)) kept += character;
        }
        if (kept == event.commitString()) return false;
        QInputMethodEvent rest(event.preeditString(), event.attributes());
        rest.setCommitString(kept, event.replacementStart(), event.replacementLength());
        QCoreApplication::sendEvent(&box_, &rest);
        return true;
    }

    QLineEdit& box_;
    KeyFunction function_;
};

/// The field receives a Tab press in place of the Enter press, so that both move to the same control.
class EnterIsTab : public QObject {
 public:
    explicit EnterIsTab(QWidget& field) : QObject(&field), field_(field) { field.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(&field_, &tab);
        return true;
    }

 private:
    QWidget& field_;
};

}  // namespace

void enterIsTab(QWidget& field) { new EnterIsTab(field); }

KeyFunction asciiOnly(KeyFunction function) {
    return [function = std::move(function)](std::int16_t key) -> std::int16_t {
        constexpr std::int16_t lastAscii = 127;
        return key > lastAscii ? std::int16_t{0} : function(key);
    };
}

void filterKeys(QLineEdit& box, KeyFunction function) {
    static const QString name = QStringLiteral("typedKeys");
    delete box.findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    (new TypedKeys(box, std::move(function)))->setObjectName(name);
}

}  // namespace zg
