#pragma once

#include <QPushButton>
#include <QWidget>
#include <string>
#include <vector>

namespace zg {

/// What a check has against a control of a form.
struct Finding {
    std::string control;  ///< objectName, or its text where it has none
    std::string fault;
};
using Findings = std::vector<Finding>;

Finding finding(const QWidget& control, const std::string& fault);

/// A caption as it is read: without its accelerator and the blanks around.
QString plainText(const QString& caption);

/// The caption of a label, button or frame; empty for other controls.
QString captionOf(const QWidget& control);

/// The controls on show, those inside a list, a box or the plot left out.
std::vector<QWidget*> shownControls(const QWidget& form);

/// The button that Enter presses from a field, one that has the focus left out of account; null for none.
QPushButton* defaultButton(const QWidget& form);

/// The controls that the Tab key reaches, in its order.
std::vector<QWidget*> tabStops(const QWidget& form);

}  // namespace zg
