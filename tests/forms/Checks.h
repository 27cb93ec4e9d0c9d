#pragma once

#include "tests/forms/Controls.h"

// Each check walks the controls of a form that is on show and gives all that a user could stumble over.

namespace zg {

/// Every control that takes the keyboard has a name that a screen reader can say, and no two in one frame
/// have the same.
Findings checkNames(const QWidget& form);

/// Every control that takes the keyboard is reached by an accelerator of its own: in its caption, in that of
/// its label, or in the title of the frame that it is the first of. Buttons that Enter or Escape press need
/// none. A label that ends in a colon belongs to a control.
Findings checkAccelerators(const QWidget& form);

/// Alt with the letter of a label takes the keyboard to the label's control. Presses the keys.
Findings checkLabelKeys(QWidget& form);

/// A button whose caption has no word explains itself by a tool tip.
Findings checkToolTips(const QWidget& form);

/// The Tab key goes on from a control to one that is read after it, and does not come back to a frame.
Findings checkTabOrder(const QWidget& form);

/// A dialog has one default button, which Enter in a field presses, and Enter on another button presses that
/// button.
Findings checkEnter(const QWidget& form);

/// Nothing is cut off, lies over something else or sticks out of what holds it.
Findings checkRoom(const QWidget& form);

/// Every text on show stands out from its ground by 4.5 to 1, also while each of its fields is marked,
/// disabled with its mark and clean again.
Findings checkColours(QWidget& form);

}  // namespace zg
