#pragma once

#include "tests/forms/Controls.h"

// Each check walks the controls of a form on display and returns everything that may trouble a user.

namespace zg {

/// Every control that takes the focus has a name for screen readers, and no two in one frame have the same.
Findings checkNames(const QWidget& form);

/// Every control that takes the focus has an accelerator of its own: in its caption, in that of its label, or
/// in the title of the frame whose first control it is. Buttons pressed by Enter or Escape need none. A label
/// that ends in a colon belongs to a control.
Findings checkAccelerators(const QWidget& form);

/// Alt with the letter of a label moves the focus to the label's control. Sends key presses.
Findings checkLabelKeys(QWidget& form);

/// A button whose caption has no word has a tool tip.
Findings checkToolTips(const QWidget& form);

/// The Tab key moves on in reading order and does not return to a frame.
Findings checkTabOrder(const QWidget& form);

/// A dialog has one default button, which Enter in a field presses; Enter on another button presses that
/// button.
Findings checkEnter(const QWidget& form);

/// Nothing is cut off, overlaps anything else or extends beyond its parent.
Findings checkRoom(const QWidget& form);

/// Every text on display has a contrast of 4.5 to 1 to its background, also while each field is marked,
/// disabled with its mark, and clean again.
Findings checkColours(QWidget& form);

}  // namespace zg
