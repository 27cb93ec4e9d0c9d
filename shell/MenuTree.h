#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <map>
#include <string>

namespace zg {

/// How an entry of the menu tree shows itself.
enum class EntryKind {
    Menu,     ///< opens a menu of the entries one level deeper
    Command,  ///< runs
    Check,    ///< runs and shows a mark of its own
    Radio,    ///< one of the marked entries around it on the same level
    Separator,
};

/// Whether an entry is out of reach while a curve is being painted.
enum class Lock { Never, WhileDrawing };

/// One row of the menu tree. The name is the entry's objectName; an entry of an array has its index behind
/// "_".
struct MenuEntry {
    int level;  ///< 0 stands on the menu bar
    EntryKind kind;
    Lock lock;
    const char* name;
    const char* caption;
    const char* shortcut = "";
    bool marked = false;  ///< at start
    bool hidden = false;  ///< not visible and disabled
};

/// The whole tree from top to bottom.
const std::vector<MenuEntry>& menuTree();

/// Makes the menus of the tree on a menu bar. Menus that are hidden there (pop-ups) are made as children of
/// the bar all the same. Gives the actions by name; a menu's action stands under the menu's name.
std::map<std::string, QAction*> buildMenus(QMenuBar& bar);

}  // namespace zg
