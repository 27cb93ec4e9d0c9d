#pragma once

#include <QLabel>
#include <string>

namespace zg {

/// A line below a status, visible only while it has a text.
class ReasonLabel : public QLabel {
    Q_OBJECT

 public:
    explicit ReasonLabel(const char* name, QWidget* parent = nullptr);

    /// The text wraps and is also the tool tip; "" hides the label.
    void setReason(const std::string& text);
};

/// A tool tip for arbitrary text; a long one wraps.
void setPlainTip(QWidget& widget, const std::string& text);

}  // namespace zg
