#include "platform/Captions.h"

#include <QFontMetrics>

namespace zg {

namespace {

constexpr int frameAndMargins = 20;

}  // namespace

QString spoken(const QString& caption) {
    QString plain = caption;
    return plain.remove(QLatin1Char('&')).trimmed();
}

int digitsWide(const QWidget& control, int count) {
    return count * control.fontMetrics().horizontalAdvance(QLatin1Char('0')) + frameAndMargins;
}

QSize windowSize(const QWidget& window, int digits) {
    return window.sizeHint().expandedTo({digitsWide(window, digits), 0});
}

}  // namespace zg
