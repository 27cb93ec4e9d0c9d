#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <map>
#include <string>

namespace zg {

/// The kinds of menu entries.
enum class EntryKind {
    Menu,     ///< opens a menu of the entries one level deeper
    Command,  ///< runs a command
    Check,    ///< runs a command and has a check mark of its own
    Radio,    ///< one of the checked entries around it on the same level
    Separator,
};

/// Whether an entry is disabled while a curve is being painted.
enum class Lock { Never, WhileDrawing };

/// One row of the menu tree. The name is the entry's objectName; an entry of an array has its index after
/// "_".
struct MenuEntry {
    int level;  ///< 0 is the menu bar
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

/// Builds the menus of the tree on a menu bar. Hidden menus (context menus) are also created as children of
/// the bar. Returns the actions by name; a menu's action has the menu's name.
std::map<std::string, QAction*> buildMenus(QMenuBar& bar);

}  // namespace zg
