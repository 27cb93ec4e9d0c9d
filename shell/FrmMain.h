#pragma once

#include <QMainWindow>
#include <map>
#include <string>

#include "base/Host.h"
#include "platform/PolarGraphWidget.h"

namespace zg {

/// The main window: the plot, and the menus that act on it. Each command is wired in one place, by the name
/// of its entry; an entry without a command is disabled.
class frmMain : public QMainWindow {
    Q_OBJECT

 public:
    explicit frmMain(Host& host);

    /// Runs the File entry of that index, as a click would: 1 opens an FRQ file.
    void mnuFileOption_Click(int Index);

    /// Loads an FRQ file into the plot. The title names the file first, so that one that fails to load still
    /// does.
    void PlotFrqFile(const std::string& path);

    PolarGraphWidget& pgPolarGraph() { return *pgPolarGraph_; }

    /// The action of a menu entry by its name, as "mnuFileOption_1"; null where there is none.
    QAction* menuAction(const std::string& name) const;

 private:
    void makeMenus();
    void openFrqFile();

    Host& host_;
    PolarGraphWidget* pgPolarGraph_;
    std::map<std::string, QAction*> actions_;
};

}  // namespace zg
