#pragma once

#include <QLabel>
#include <string>

namespace zg {

/// A line under a status that is there only while it has something to say.
class ReasonLabel : public QLabel {
    Q_OBJECT

 public:
    explicit ReasonLabel(const char* name, QWidget* parent = nullptr);

    /// The text wraps, and is the tool tip too; "" hides the label.
    void setReason(const std::string& text);
};

/// A tool tip of a text that may hold anything; a long one wraps.
void setPlainTip(QWidget& widget, const std::string& text);

}  // namespace zg
