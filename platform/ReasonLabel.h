#pragma once

#include <QLabel>
#include <string>

namespace zg {

/// A line below a status, visible only while it has a text.
class ReasonLabel : public QLabel {
    Q_OBJECT

 public:
    explicit ReasonLabel(const char* name, QWidget* parent = nullptr);

    /// As wide as its longest word, but not so wide that a path could widen the window beyond the screen.
    QSize minimumSizeHint() const override;

    /// The text wraps and is also the tool tip; "" hides the label.
    void setReason(const std::string& text);
};

/// The text with places where a line can end after each "\" that separates directories: the toolkit breaks
/// lines after "/" only. To be shown, not to be read back.
QString withBreaks(const QString& text);

/// Wraps the text of a label. A word that is longer than the label, such as a path, does not widen the
/// window.
void wrapWithin(QLabel& label);

/// The tool tip that shows any text as it is, never as markup; a long one wraps.
QString plainTip(const QString& tip);

/// Gives a widget such a tool tip.
void setPlainTip(QWidget& widget, const std::string& text);

}  // namespace zg
