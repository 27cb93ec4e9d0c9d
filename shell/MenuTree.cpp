#include "shell/MenuTree.h"

#include <QActionGroup>
#include <QMenu>

namespace zg {

const std::vector<MenuEntry>& menuTree() {
    using enum EntryKind;
    using enum Lock;
    static const std::vector<MenuEntry> tree = {
        {0, Menu, Never, "mnuFile", "&File"},
        {1, Command, WhileDrawing, "mnuFileOption_0", "&New", "Ctrl+N", false, true},
        {1, Command, WhileDrawing, "mnuFileOption_1", "Plot Wind Rose from FRQ File"},
        {1, Separator, Never, "mnuFileOption_2", ""},
        {1, Command, WhileDrawing, "mnuFileOption_3", "Process 3D.DAT Data"},
        {1, Command, WhileDrawing, "mnuFileOption_4", "Process AERMET Surface Data"},
        {1, Command, WhileDrawing, "mnuFileOption_5", "Process AERMET Profile Data"},
        {1, Command, WhileDrawing, "mnuFileOption_6", "Process AMMNET Met. Data"},
        {1, Command, WhileDrawing, "mnuFileOption_7", "Process VENTOS Data"},
        {1, Command, WhileDrawing, "mnuFileOption_8", "Process SURF.DAT Data"},
        {1, Command, WhileDrawing, "mnuFileOption_9", "Process UP.DAT Data"},
        {1, Command, WhileDrawing, "mnuFileOption_10", "Process TSF Data"},
        {1, Separator, Never, "mnuFileOption_11", ""},
        {1, Command, WhileDrawing, "mnuFileOption_12", "&Save (As BMP)", "Ctrl+S"},
        {1, Command, WhileDrawing, "mnuFileOption_13", "&Batch Save (As BMP)", "Ctrl+B"},
        {1, Separator, Never, "mnuFileOption_14", ""},
        {1, Command, WhileDrawing, "mnuFileOption_15", "&Create Report (From BMP)", "Ctrl+R"},
        {1, Command, WhileDrawing, "mnuFileOption_16", "&Print", "Ctrl+P"},
        {1, Separator, Never, "mnuFileOption_17", ""},
        {1, Command, WhileDrawing, "mnuFileOption_18", "E&xit"},

        {0, Menu, Never, "mnuEdit", "&Edit"},
        {1, Command, WhileDrawing, "mnuEditOption_0", "Copy", "Ctrl+C"},
        {1, Command, WhileDrawing, "mnuEditOption_1", "Select &All", "Ctrl+A"},
        {1, Separator, Never, "mnuEditOption_2", ""},
        {1, Command, WhileDrawing, "mnuEditOption_3", "Copy To..."},

        {0, Menu, Never, "mnuView", "&View"},
        {1, Command, Never, "mnuAvePeriod", "Wind Rose  (Seasonal, etc...)"},
        {1, Command, Never, "mnuViewFRQFile", "FRQ File"},
        {1, Separator, Never, "mnuViewSep_0", ""},
        {1, Check, Never, "mnuViewToolbar", "Toolbar", "", true},
        {1, Check, Never, "mnuViewToolbox", "Toolbox", "", true},
        {1, Separator, Never, "mnuViewSep_1", ""},
        {1, Menu, Never, "mnuViewRuler", "Ruler"},
        {2, Check, Never, "mnuViewRulerShow", "Show", "", true},
        {2, Menu, Never, "mnuViewRulerMode", "Mode"},
        {3, Radio, Never, "mnuViewRulerModeOption_0", "Axis"},
        {3, Radio, Never, "mnuViewRulerModeOption_1", "Unit", "", true},
        {1, Separator, Never, "mnuViewSep_2", ""},
        {1, Menu, Never, "mnuViewAspect", "Aspect &Ratio"},
        {2, Radio, WhileDrawing, "mnuViewAspectOption_0", "1.5", "", true},
        {2, Radio, WhileDrawing, "mnuViewAspectOption_1", "2.5"},
        {2, Radio, WhileDrawing, "mnuViewAspectOption_2", "3.5"},
        {2, Radio, WhileDrawing, "mnuViewAspectOption_3", "4.5"},
        {2, Separator, Never, "mnuViewAspectOption_4", ""},
        {2, Command, WhileDrawing, "mnuViewAspectOption_5", "&Custom..."},
        {1, Menu, Never, "mnuViewZoom", "Zoom"},
        {2, Radio, WhileDrawing, "mnuViewZoomSize_0", "Normal Size", "", true},
        {2, Radio, WhileDrawing, "mnuViewZoomSize_1", "Large Size"},
        {2, Command, WhileDrawing, "mnuViewZoomSize_2", "Custom..."},
        {1, Separator, Never, "mnuViewSep_3", ""},
        {1, Command, Never, "mnuViewDA", "Reset Drawing Area"},
        {1, Command, WhileDrawing, "mnuViewRefresh", "&Refresh", "", false, true},

        {0, Menu, Never, "mnuPolar", "&Options"},
        {1, Command, Never, "mnuSetSeasons", "Set Seasons"},
        {1, Command, Never, "mnuSetWindSpeedClasses", "Set Wind Speed Classes"},
        {1, Separator, Never, "mnuPolarSep_0", ""},
        {1, Command, Never, "mnuChangeRadius", "Change Radius"},
        {1, Separator, Never, "mnuPolarSep_1", ""},
        {1, Command, Never, "mnuAddLabel", "Edit Label"},
        {1, Command, Never, "mnuEditLegend", "Edit Wind Speed Classes Legend"},
        {1, Command, Never, "mnuGridFonts", "Edit Grid Fonts and Colors"},
        {1, Separator, Never, "mnuPolarSep_2", ""},
        {1, Menu, WhileDrawing, "mnuPolarOption_0", "Show Grid Lines"},
        {2, Radio, WhileDrawing, "mnuPolarGridOption_0", "None"},
        {2, Radio, WhileDrawing, "mnuPolarGridOption_1", "Minor", "", true},
        {2, Radio, WhileDrawing, "mnuPolarGridOption_2", "Major"},
        {1, Check, WhileDrawing, "mnuPolarOption_1", "Show Grid Labels", "", true},
        {1, Check, WhileDrawing, "mnuPolarOption_2", "Show Legend", "", true},
        {1, Separator, Never, "mnuPolarOption_3", "", "", false, true},
        {1, Check, Never, "mnuPolarOption_4", "Coordinate System", "", true, true},
        {1, Command, Never, "mnuPolarOption_6", "More Options...", "", false, true},

        {0, Menu, Never, "mnuGraph", "&Graph", "", false, true},
        {1, Command, Never, "mnuGraphOption_0", "&Hide"},
        {1, Command, Never, "mnuGraphOption_1", "&Show"},
        {1, Command, Never, "mnuGraphOption_2", "&Delete"},
        {1, Separator, Never, "mnuGraphOption_3", ""},
        {1, Command, Never, "mnuGraphOption_4", "Select &All"},
        {1, Separator, Never, "mnuGraphOption_5", ""},
        {1, Command, Never, "mnuGraphOption_6", "&Play"},
        {1, Command, Never, "mnuGraphOption_7", "Sto&p"},
        {1, Separator, Never, "mnuGraphOption_8", ""},
        {1, Command, Never, "mnuGraphOption_9", "&Table..."},
        {1, Separator, Never, "mnuGraphOption_10", ""},
        {1, Command, Never, "mnuGraphOption_11", "&Properties"},

        {0, Menu, Never, "mnuHelp", "&Help"},
        {1, Command, Never, "mnuHelpAbout", "&About Zephyrgraph..."},
    };
    return tree;
}

namespace {

/// The menus that are open for further entries while the tree is built, from the bar's level down.
class MenuBuilder {
 public:
    explicit MenuBuilder(QMenuBar& bar) : bar_(bar) {}

    QAction* add(const MenuEntry& entry) {
        open_.resize(std::min(open_.size(), static_cast<std::size_t>(entry.level)));
        QAction* action = entry.kind == EntryKind::Menu ? addMenu(entry) : addAction(entry);
        action->setObjectName(QString::fromLatin1(entry.name));
        if (entry.hidden) {
            action->setVisible(false);
            action->setEnabled(false);
        }
        if (entry.kind != EntryKind::Radio) group_ = nullptr;
        return action;
    }

 private:
    QAction* addMenu(const MenuEntry& entry) {
        const QString caption = QString::fromLatin1(entry.caption);
        QMenu* menu = nullptr;
        if (open_.empty() && entry.hidden)
            menu = new QMenu(caption, &bar_);  // a context menu: it is not on the bar
        else
            menu = open_.empty() ? bar_.addMenu(caption) : open_.back()->addMenu(caption);
        menu->setObjectName(QString::fromLatin1(entry.name) + QStringLiteral("_menu"));
        open_.push_back(menu);
        return menu->menuAction();
    }

    QAction* addAction(const MenuEntry& entry) {
        QMenu* menu = open_.back();
        if (entry.kind == EntryKind::Separator) return menu->addSeparator();
        QAction* action = menu->addAction(QString::fromLatin1(entry.caption));
        if (*entry.shortcut != '\0') action->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
        if (entry.kind == EntryKind::Check || entry.kind == EntryKind::Radio) action->setCheckable(true);
        if (entry.kind == EntryKind::Radio) {
            if (group_ == nullptr) group_ = new QActionGroup(menu);
            group_->addAction(action);
        }
        action->setChecked(entry.marked);
        return action;
    }

    QMenuBar& bar_;
    std::vector<QMenu*> open_;
    QActionGroup* group_ = nullptr;
};

}  // namespace

std::map<std::string, QAction*> buildMenus(QMenuBar& bar) {
    MenuBuilder builder(bar);
    std::map<std::string, QAction*> actions;
    for (const MenuEntry& entry : menuTree()) actions[entry.name] = builder.add(entry);
    return actions;
}

}  // namespace zg
