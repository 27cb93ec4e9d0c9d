#include "tests/forms/Looks.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>

namespace zg {

namespace {

QFont usualFont() {
    static const QFont font = QApplication::font();
    return font;
}

}  // namespace

void enlargeFonts(double factor) {
    QFont font = usualFont();
    font.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(font);
}

void takeDarkTheme() {
    const QColor ground(42, 46, 50);
    const QColor text(252, 252, 252);
    const QColor faint(140, 140, 140);
    QPalette dark(QColor(49, 54, 59), ground);
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(35, 38, 41));
    dark.setColor(QPalette::ToolTipBase, QColor(49, 54, 59));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                           QPalette::ToolTipText, QPalette::BrightText}) {
        dark.setColor(role, text);
        dark.setColor(QPalette::Disabled, role, faint);
    }
    dark.setColor(QPalette::PlaceholderText, faint);
    QApplication::setPalette(dark);
}

void resetLooks() {
    QApplication::setFont(usualFont());
    QApplication::setPalette(QApplication::style()->standardPalette());
}

}  // namespace zg
