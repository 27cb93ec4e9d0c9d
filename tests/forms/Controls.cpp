#include "tests/forms/Controls.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QTabBar>

#include "platform/PolarGraphWidget.h"

namespace zg {

namespace {

template <typename... Kinds>
bool isAnyOf(const QWidget* widget) {
    return ((dynamic_cast<const Kinds*>(widget) != nullptr) || ...);
}

/// Whether the toolkit made the child as part of a control, or it belongs to the plot.
bool isPartOfAControl(const QWidget& widget, const QWidget& form) {
    for (const QWidget* at = widget.parentWidget(); at != nullptr && at != &form; at = at->parentWidget())
        if (isAnyOf<QAbstractScrollArea, QComboBox, QAbstractSpinBox, QTabBar, QLineEdit, QMenuBar,
                    PolarGraphWidget>(at))
            return true;
    return false;
}

}  // namespace

Finding finding(const QWidget& control, const std::string& fault) {
    QString name = control.objectName();
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_"))) name = plainText(captionOf(control));
    if (name.isEmpty()) name = QLatin1String(control.metaObject()->className());
    return {name.toStdString(), fault};
}

QString plainText(const QString& caption) {
    QString plain = caption;
    plain.replace(QLatin1String("&&"), QString(QChar(1)));
    plain.remove(QLatin1Char('&'));
    return plain.replace(QChar(1), QLatin1Char('&')).trimmed();
}

QString captionOf(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&control)) return frame->title();
    return {};
}

std::vector<QWidget*> shownControls(const QWidget& form) {
    std::vector<QWidget*> shown;
    for (QWidget* each : form.findChildren<QWidget*>())
        if (each->window() == &form && each->isVisible() && !isPartOfAControl(*each, form))
            shown.push_back(each);
    return shown;
}

QPushButton* defaultButton(const QWidget& form) {
    // A focused button is temporarily the default one.
    QWidget* focused = form.focusWidget();
    if (focused != nullptr) focused->clearFocus();
    QPushButton* standard = nullptr;
    for (QWidget* each : shownControls(form))
        if (auto* button = qobject_cast<QPushButton*>(each); button != nullptr && button->isDefault())
            standard = button;
    if (focused != nullptr) focused->setFocus();
    return standard;
}

std::vector<QWidget*> tabStops(const QWidget& form) {
    std::vector<QWidget*> stops;
    for (QWidget* at = form.nextInFocusChain(); at != nullptr && at != &form; at = at->nextInFocusChain()) {
        const bool reached = at->isVisible() && at->isEnabled() && at->window() == &form &&
                             (at->focusPolicy() & Qt::TabFocus) != 0 && at->focusProxy() == nullptr;
        const bool surface = isPartOfAControl(*at, form) && !at->inherits("QWidget");
        if (reached && !surface && !isAnyOf<QScrollBar>(at) &&
            !(isPartOfAControl(*at, form) && isAnyOf<QLineEdit, QAbstractScrollArea>(at)))
            stops.push_back(at);
    }
    return stops;
}

}  // namespace zg
