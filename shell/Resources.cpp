#include "shell/Resources.h"

#include <map>

#include "platform/LineArt.h"
#include "platform/Pointers.h"

// Outside any namespace, as the toolkit's macro requires: the resources of a library must be initialised
// explicitly.
static void loadResources() { Q_INIT_RESOURCE(shell); }

namespace zg {

namespace {

/// The hot spot of each pointer, in its 32 by 32 units.
const std::map<int, QPoint>& hotSpots() {
    static const std::map<int, QPoint> spots = {{101, {6, 26}},  {103, {16, 16}}, {104, {16, 16}},
                                                {105, {17, 18}}, {106, {18, 19}}, {107, {16, 16}},
                                                {108, {13, 13}}};
    return spots;
}

}  // namespace

QIcon programIcon(const char* name) {
    loadResources();
    return lineArtIcon(QStringLiteral(":/shell/icons/") + QString::fromLatin1(name) + QStringLiteral(".svg"));
}

PicturePointer cursorPicture(int id) {
    const auto spot = hotSpots().find(id);
    if (spot == hotSpots().end()) return nullptr;
    loadResources();
    return pointerPicture(QStringLiteral(":/shell/icons/cursor_%1.svg").arg(id), spot->second);
}

QCursor programCursor(int id) {
    const PicturePointer picture = cursorPicture(id);
    return picture ? cursorOf(*picture) : QCursor();
}

}  // namespace zg
