#include "platform/ReasonLabel.h"

#include <QLayout>
#include <limits>

#include "platform/QtText.h"

namespace zg {

namespace {

/// A text that wraps gets the lines it needs; nothing around it shrinks.
void makeRoom(QWidget& window) {
    QLayout* layout = window.layout();
    if (layout == nullptr) return;
    layout->activate();
    const int least = layout->hasHeightForWidth() ? layout->totalMinimumHeightForWidth(window.width())
                                                  : layout->totalMinimumSize().height();
    if (window.height() < least) window.resize(window.width(), least);
}

}  // namespace

ReasonLabel::ReasonLabel(const char* name, QWidget* parent) : QLabel(parent) {
    setObjectName(QString::fromLatin1(name));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

QSize ReasonLabel::minimumSizeHint() const {
    constexpr int longestWord = 70;  // letters
    return QLabel::minimumSizeHint().boundedTo(
        {longestWord * fontMetrics().averageCharWidth(), std::numeric_limits<int>::max()});
}

void ReasonLabel::setReason(const std::string& text) {
    setText(withBreaks(shown(text)));
    setPlainTip(*this, text);
    setVisible(!text.empty());
    if (isVisible()) makeRoom(*window());
}

QString withBreaks(const QString& text) {
    if constexpr (pathSeparator != '\\') return text;
    constexpr char16_t zeroWidthSpace = 0x200B;
    const QLatin1Char separator(pathSeparator);
    return QString(text).replace(separator, QString(separator) + QChar(zeroWidthSpace));
}

void wrapWithin(QLabel& label) {
    label.setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    label.setSizePolicy(policy);
}

QString plainTip(const QString& tip) {
    constexpr qsizetype longLine = 80;
    // Only a text with markup wraps, and there a line end counts as a blank.
    const bool asMarkup = tip.size() > longLine || Qt::mightBeRichText(tip);
    const QString lines = tip.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return asMarkup ? QStringLiteral("<p>%1</p>").arg(lines) : tip;
}

void setPlainTip(QWidget& widget, const std::string& text) { widget.setToolTip(plainTip(shown(text))); }

}  // namespace zg
