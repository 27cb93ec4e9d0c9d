// Colours of texts and backgrounds.

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <sstream>

#include "platform/FieldMarks.h"
#include "tests/forms/Checks.h"

namespace zg {

namespace {

constexpr double leastContrast = 4.5;

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast ratio defined by the guidelines for accessible content: 1 for equal colours, 21 for black on
/// white.
double contrast(const QColor& first, const QColor& second) {
    const auto [dark, light] = std::minmax({luminance(first), luminance(second)});
    return (light + 0.05) / (dark + 0.05);
}

bool hasGroundOfItsOwn(const QWidget& control) {
    return control.inherits("QLineEdit") || control.inherits("QComboBox") ||
           control.inherits("QAbstractSpinBox") || control.inherits("QAbstractItemView") ||
           control.inherits("QPlainTextEdit") || control.inherits("QPushButton");
}

struct Roles {
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

Roles rolesOf(const QWidget& control) {
    const auto* list = qobject_cast<const QComboBox*>(&control);
    if (control.inherits("QPushButton") || (list != nullptr && !list->isEditable()))
        return {QPalette::ButtonText, QPalette::Button};
    if (hasGroundOfItsOwn(control)) return {QPalette::Text, QPalette::Base};
    return {QPalette::WindowText, QPalette::Window};
}

const QWidget& painterOfGround(const QWidget& control) {
    const QWidget* at = &control;
    while (!at->isWindow() && !at->autoFillBackground()) at = at->parentWidget();
    return *at;
}

bool isMarked(const QWidget& control) {
    const Colour mark = fieldMark(control);
    return mark == yellowMark || mark == darkYellowMark;
}

/// Whether the control is marked, or its text is painted on a marked one.
bool liesOnAMark(const QWidget& control) {
    const QWidget* at = &control;
    if (hasGroundOfItsOwn(control)) {
        const QWidget* holder = control.parentWidget();
        return isMarked(control) || (hasGroundOfItsOwn(*holder) && isMarked(*holder));
    }
    while (!isMarked(*at) && !at->isWindow()) at = at->parentWidget();
    return isMarked(*at);
}

/// Disabled text may be faint, but not on a mark.
void checkText(Findings& found, const QWidget& control, const std::string& when) {
    if (!hasGroundOfItsOwn(control) && captionOf(control).isEmpty()) return;
    if (!control.isEnabled() && !liesOnAMark(control)) return;
    const Roles roles = rolesOf(control);
    const QColor text = control.palette().color(roles.text);
    const QWidget& painter = hasGroundOfItsOwn(control) ? control : painterOfGround(control);
    const QColor ground = painter.palette().color(roles.ground);
    const double ratio = contrast(text, ground);
    if (ratio >= leastContrast) return;
    std::ostringstream fault;
    fault << text.name().toStdString() << " on " << ground.name().toStdString() << when << ", 1 to " << ratio;
    found.push_back(finding(control, fault.str()));
}

/// The control and all its children.
void checkTexts(Findings& found, const QWidget& control, const std::string& when) {
    checkText(found, control, when);
    for (const QWidget* each : control.findChildren<QWidget*>())
        if (each->isVisible()) checkText(found, *each, when);
}

/// An icon is recognised by its lines: enough of its pixels contrast with the background.
void checkIcon(Findings& found, const QToolButton& button) {
    const QImage image = button.icon().pixmap(button.iconSize()).toImage();
    const QColor ground = painterOfGround(button).palette().color(QPalette::Window);
    constexpr int opaque = 200;
    constexpr double leastOfLines = 3;
    int drawn = 0;
    int seen = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() < opaque) continue;
            ++drawn;
            if (contrast(pixel, ground) >= leastOfLines) ++seen;
        }
    if (5 * seen < drawn || drawn == 0) found.push_back(finding(button, "has an icon that is hardly seen"));
}

bool takesMarks(const QWidget& control) {
    if (control.objectName().isEmpty() || control.objectName().startsWith(QLatin1String("qt_"))) return false;
    return control.inherits("QLineEdit") || control.inherits("QComboBox") ||
           control.inherits("QAbstractSpinBox") || control.inherits("QListWidget") ||
           control.inherits("QGroupBox");
}

}  // namespace

Findings checkColours(QWidget& form) {
    Findings found;
    for (QWidget* each : shownControls(form)) {
        checkText(found, *each, "");
        if (const auto* button = qobject_cast<const QToolButton*>(each)) checkIcon(found, *button);
    }
    for (QWidget* each : shownControls(form)) {
        if (!takesMarks(*each)) continue;
        const bool enabled = each->isEnabled();
        EnableField(*each);
        MarkInvalid(*each);
        checkTexts(found, *each, " while marked");
        DisableField(*each);
        checkTexts(found, *each, " while marked and disabled");
        EnableField(*each);
        ClearInvalid(*each);
        checkText(found, *each, " after the mark");
        if (!enabled) DisableField(*each);
    }
    return found;
}

}  // namespace zg
