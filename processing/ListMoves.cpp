#include "processing/ListMoves.h"

#include <utility>

namespace zg {

void ListMoveUp(std::vector<ListRow>& rows) {
    if (rows.empty() || rows.front().selected) return;
    for (std::size_t i = 1; i < rows.size(); ++i)
        if (rows[i].selected) std::swap(rows[i - 1], rows[i]);
}

void ListMoveDown(std::vector<ListRow>& rows) {
    if (rows.empty() || rows.back().selected) return;
    // The last row first, so that neighbours move together instead of past each other.
    for (std::size_t i = rows.size() - 1; i > 0; --i)
        if (rows[i - 1].selected) std::swap(rows[i - 1], rows[i]);
}

void ListRemoveSelected(std::vector<ListRow>& rows) {
    std::erase_if(rows, [](const ListRow& row) { return row.selected; });
}

}  // namespace zg
