#include "platform/Pickers.h"

#include <QScrollBar>

#include "base/Paths.h"
#include "platform/ReadText.h"

namespace zg {

std::string ShowFileOpen(Host& host, const std::string& filter, int index, const std::string& initDir) {
    FilePick pick;
    pick.filter = filter;
    pick.filterIndex = index;
    pick.directory = initDir;
    return host.pickFileToOpen(pick);
}

void addFiles(const std::vector<std::string>& paths, QListWidget& list, std::string& dir) {
    if (paths.empty()) return;
    for (const std::string& path : paths) addRead(list, path);
    // Rows are never cut off: the list scrolls sideways to the end of its longest text plus a scroll bar.
    list.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setTextElideMode(Qt::ElideNone);
    dir = DirOf(paths.front());
}

void SelectFiles(Host& host, QListWidget& list, std::string& dir, const std::string& filter) {
    FilePick pick;
    pick.title = "Select Files";
    pick.filter = filter;
    pick.directory = dir;
    addFiles(host.pickFilesToOpen(pick), list, dir);
}

std::string BrowseForFolder(Host& host, const std::string& start, const std::string& title, int style) {
    FolderPick pick;
    pick.title = title;
    pick.start = start;
    pick.offerNewFolder = style > 0;
    const std::string picked = host.pickFolder(pick);
    return picked.empty() ? start : picked;
}

}  // namespace zg
