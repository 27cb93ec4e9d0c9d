#include "platform/KeyFilter.h"

#include <QKeyEvent>

#include "platform/QtText.h"

namespace zg {

namespace {

class TypedKeys : public QObject {
 public:
    TypedKeys(QLineEdit& box, KeyFunction function) : QObject(&box), function_(std::move(function)) {
        box.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->text().isEmpty() || key->modifiers().testFlag(Qt::ControlModifier) ||
            key->modifiers().testFlag(Qt::AltModifier))
            return false;
        for (const char byte : typed(key->text()))
            if (function_(static_cast<unsigned char>(byte)) == 0) return passesOn(key->key()) ? false : true;
        return false;
    }

 private:
    /// Keys that serve the dialog whatever a box may hold.
    static bool passesOn(int key) {
        return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Escape;
    }

    KeyFunction function_;
};

}  // namespace

void filterKeys(QLineEdit& box, KeyFunction function) {
    static const QString name = QStringLiteral("typedKeys");
    delete box.findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    (new TypedKeys(box, std::move(function)))->setObjectName(name);
}

}  // namespace zg
