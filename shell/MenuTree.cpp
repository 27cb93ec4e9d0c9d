#include "shell/MenuTree.h"

#include <QActionGroup>
#include <QMenu>

namespace zg {

const std::vector<MenuEntry>& menuTree() {
    using enum EntryKind;
    static const std::vector<MenuEntry> tree = {
        {0, Menu, "mnuFile", "&File"},
        {1, Command, "mnuFileOption_0", "&New", "Ctrl+N", false, true},
        {1, Command, "mnuFileOption_1", "Plot Wind Rose from FRQ File"},
        {1, Separator, "mnuFileOption_2", ""},
        {1, Command, "mnuFileOption_3", "Process 3D.DAT Data"},
        {1, Command, "mnuFileOption_4", "Process AERMET Surface Data"},
        {1, Command, "mnuFileOption_5", "Process AERMET Profile Data"},
        {1, Command, "mnuFileOption_6", "Process AMMNET Met. Data"},
        {1, Command, "mnuFileOption_7", "Process VENTOS Data"},
        {1, Command, "mnuFileOption_8", "Process SURF.DAT Data"},
        {1, Command, "mnuFileOption_9", "Process UP.DAT Data"},
        {1, Command, "mnuFileOption_10", "Process TSF Data"},
        {1, Separator, "mnuFileOption_11", ""},
        {1, Command, "mnuFileOption_12", "&Save (As BMP)", "Ctrl+S"},
        {1, Command, "mnuFileOption_13", "&Batch Save (As BMP)", "Ctrl+B"},
        {1, Separator, "mnuFileOption_14", ""},
        {1, Command, "mnuFileOption_15", "&Create Report (From BMP)", "Ctrl+R"},
        {1, Command, "mnuFileOption_16", "&Print", "Ctrl+P"},
        {1, Separator, "mnuFileOption_17", ""},
        {1, Command, "mnuFileOption_18", "E&xit"},

        {0, Menu, "mnuEdit", "&Edit"},
        {1, Command, "mnuEditOption_0", "Copy", "Ctrl+C"},
        {1, Command, "mnuEditOption_1", "Select &All", "Ctrl+A"},
        {1, Separator, "mnuEditOption_2", ""},
        {1, Command, "mnuEditOption_3", "Copy To..."},

        {0, Menu, "mnuView", "&View"},
        {1, Command, "mnuAvePeriod", "Wind Rose  (Seasonal, etc...)"},
        {1, Command, "mnuViewFRQFile", "FRQ File"},
        {1, Separator, "mnuViewSep_0", ""},
        {1, Check, "mnuViewToolbar", "Toolbar", "", true},
        {1, Check, "mnuViewToolbox", "Toolbox", "", true},
        {1, Separator, "mnuViewSep_1", ""},
        {1, Menu, "mnuViewRuler", "Ruler"},
        {2, Check, "mnuViewRulerShow", "Show", "", true},
        {2, Menu, "mnuViewRulerMode", "Mode"},
        {3, Radio, "mnuViewRulerModeOption_0", "Axis"},
        {3, Radio, "mnuViewRulerModeOption_1", "Unit", "", true},
        {1, Separator, "mnuViewSep_2", ""},
        {1, Menu, "mnuViewAspect", "Aspect &Ratio"},
        {2, Radio, "mnuViewAspectOption_0", "1.5", "", true},
        {2, Radio, "mnuViewAspectOption_1", "2.5"},
        {2, Radio, "mnuViewAspectOption_2", "3.5"},
        {2, Radio, "mnuViewAspectOption_3", "4.5"},
        {2, Separator, "mnuViewAspectOption_4", ""},
        {2, Command, "mnuViewAspectOption_5", "&Custom..."},
        {1, Menu, "mnuViewZoom", "Zoom"},
        {2, Radio, "mnuViewZoomSize_0", "Normal Size", "", true},
        {2, Radio, "mnuViewZoomSize_1", "Large Size"},
        {2, Command, "mnuViewZoomSize_2", "Custom..."},
        {1, Separator, "mnuViewSep_3", ""},
        {1, Command, "mnuViewDA", "Reset Drawing Area"},
        {1, Command, "mnuViewRefresh", "&Refresh", "", false, true},

        {0, Menu, "mnuPolar", "&Options"},
        {1, Command, "mnuSetSeasons", "Set Seasons"},
        {1, Command, "mnuSetWindSpeedClasses", "Set Wind Speed Classes"},
        {1, Separator, "mnuPolarSep_0", ""},
        {1, Command, "mnuChangeRadius", "Change Radius"},
        {1, Separator, "mnuPolarSep_1", ""},
        {1, Command, "mnuAddLabel", "Edit Label"},
        {1, Command, "mnuEditLegend", "Edit Wind Speed Classes Legend"},
        {1, Command, "mnuGridFonts", "Edit Grid Fonts and Colors"},
        {1, Separator, "mnuPolarSep_2", ""},
        {1, Menu, "mnuPolarOption_0", "Show Grid Lines"},
        {2, Radio, "mnuPolarGridOption_0", "None"},
        {2, Radio, "mnuPolarGridOption_1", "Minor", "", true},
        {2, Radio, "mnuPolarGridOption_2", "Major"},
        {1, Check, "mnuPolarOption_1", "Show Grid Labels", "", true},
        {1, Check, "mnuPolarOption_2", "Show Legend", "", true},
        {1, Separator, "mnuPolarOption_3", "", "", false, true},
        {1, Check, "mnuPolarOption_4", "Coordinate System", "", true, true},
        {1, Command, "mnuPolarOption_6", "More Options...", "", false, true},

        {0, Menu, "mnuGraph", "&Graph", "", false, true},
        {1, Command, "mnuGraphOption_0", "&Hide"},
        {1, Command, "mnuGraphOption_1", "&Show"},
        {1, Command, "mnuGraphOption_2", "&Delete"},
        {1, Separator, "mnuGraphOption_3", ""},
        {1, Command, "mnuGraphOption_4", "Select &All"},
        {1, Separator, "mnuGraphOption_5", ""},
        {1, Command, "mnuGraphOption_6", "&Play"},
        {1, Command, "mnuGraphOption_7", "Sto&p"},
        {1, Separator, "mnuGraphOption_8", ""},
        {1, Command, "mnuGraphOption_9", "&Table..."},
        {1, Separator, "mnuGraphOption_10", ""},
        {1, Command, "mnuGraphOption_11", "&Properties"},

        {0, Menu, "mnuHelp", "&Help"},
        {1, Command, "mnuHelpAbout", "&About Zephyrgraph..."},
    };
    return tree;
}

namespace {

/// The menus that are open for further entries while the tree is walked, from the bar's level down.
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
            menu = new QMenu(caption, &bar_);  // a pop-up: it stands on no bar
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
