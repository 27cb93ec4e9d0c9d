#pragma once

#include <QListWidget>

namespace zg {

/// Moves the selected rows of a list one place, as a block that stays selected; nothing moves once one of
/// them has reached the end.
void ListMoveUp(QListWidget& list);
void ListMoveDown(QListWidget& list);

/// Removes the selected rows.
void ListRemoveSelected(QListWidget& list);

}  // namespace zg
