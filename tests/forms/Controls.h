#pragma once

#include <QPushButton>
#include <QWidget>
#include <string>
#include <vector>

namespace zg {

/// What a check has found wrong with a control of a form.
struct Finding {
    std::string control;  ///< objectName, or its text if it has none
    std::string fault;
};
using Findings = std::vector<Finding>;

Finding finding(const QWidget& control, const std::string& fault);

/// A caption as a user reads it: without its accelerator mark, trimmed.
QString plainText(const QString& caption);

/// The caption of a label, button or frame; empty for other controls.
QString captionOf(const QWidget& control);

/// The visible controls, without those inside a list, a box or the plot.
std::vector<QWidget*> shownControls(const QWidget& form);

/// The button that Enter presses in a field, whatever has the focus; null if there is none.
QPushButton* defaultButton(const QWidget& form);

/// The controls that the Tab key reaches, in order.
std::vector<QWidget*> tabStops(const QWidget& form);

}  // namespace zg
