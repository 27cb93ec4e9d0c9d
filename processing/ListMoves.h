#pragma once

#include <string>
#include <vector>

namespace zg {

struct ListRow {
    std::string text;
    bool selected = false;
    bool operator==(const ListRow&) const = default;
};

/// The selected rows move one place as a block and stay selected. Nothing moves once one of them has reached
/// the end.
void ListMoveUp(std::vector<ListRow>& rows);
void ListMoveDown(std::vector<ListRow>& rows);

/// Removes the selected rows.
void ListRemoveSelected(std::vector<ListRow>& rows);

}  // namespace zg
