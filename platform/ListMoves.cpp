#include "platform/ListMoves.h"

#include "platform/ReadText.h"
#include "processing/ListMoves.h"

namespace zg {

namespace {

/// Applies a rule to the rows and shows the result.
void applyTo(QListWidget& list, void (*rule)(std::vector<ListRow>&)) {
    std::vector<ListRow> rows;
    rows.reserve(static_cast<std::size_t>(list.count()));
    for (int i = 0; i < list.count(); ++i)
        rows.push_back({readIn(*list.item(i)), list.item(i)->isSelected()});
    rule(rows);
    list.clear();
    for (const ListRow& row : rows) {
        addRead(list, row.text);
        list.item(list.count() - 1)->setSelected(row.selected);
    }
}

}  // namespace

void ListMoveUp(QListWidget& list) {
    applyTo(list, static_cast<void (*)(std::vector<ListRow>&)>(&ListMoveUp));
}

void ListMoveDown(QListWidget& list) {
    applyTo(list, static_cast<void (*)(std::vector<ListRow>&)>(&ListMoveDown));
}

void ListRemoveSelected(QListWidget& list) {
    applyTo(list, static_cast<void (*)(std::vector<ListRow>&)>(&ListRemoveSelected));
}

}  // namespace zg
