#pragma once

#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Host.h"
#include "batch/BatchRun.h"
#include "dialogs/point/PointDialog.h"
#include "formats/Kinds.h"
#include "platform/BatchStarter.h"
#include "shell/FrmMainControls.h"
#include "shell/GraphList.h"
#include "shell/MenuTree.h"
#include "shell/Toolbox.h"

namespace zg {

/// The main window: the plot, the list of graphs, and the menus that act on them. Each command is connected
/// in one place, by the name of its entry; an entry without a command is disabled.
class frmMain : public QMainWindow {
    Q_OBJECT

 public:
    explicit frmMain(Host& host);

    /// What the window does once before it is first shown: reads the configuration, finds the background
    /// picture, and initialises zoom, radius and labels. An error ends it at that point.
    void Form_Load();

    // Run the entry of that index, as a click would: mnuFileOption 1 opens an FRQ file, 12 saves the page as
    // a bitmap. While settings.BatchMode is set neither asks for a file.
    void mnuFileOption_Click(int Index) { runEntry("mnuFileOption", Index); }
    void mnuEditOption_Click(int Index) { runEntry("mnuEditOption", Index); }
    void mnuViewAspectOption_Click(int Index) { runEntry("mnuViewAspectOption", Index); }
    void mnuViewZoomSize_Click(int Index) { runEntry("mnuViewZoomSize", Index); }
    void mnuGraphOption_Click(int Index) { runEntry("mnuGraphOption", Index); }

    /// Loads an FRQ file into the plot. The title names the file first, even if it then fails to load.
    void PlotFrqFile(const std::string& path);

    /// The commands that a batch run calls.
    BatchHooks batchHooks();

    /// Appends the row of the plot's curve of that number, from 1, to the list.
    void AddGraph(std::int16_t Index) { graphs_->add(Index); }

    /// Sets the plot's pointer by its number.
    void LoadToolCursor(ToolCursor id) { toolbox_->loadCursor(id); }

    /// Puts the picture of that name from the program's Bitmap directory on the plot; false if there is none.
    /// Raises 481 for a file that is not a picture.
    bool LoadBackgroundPicture(const std::string& name);

    /// Size in pixels of the picture in which a graph's swatch is drawn.
    void SizeLegendSwatch();
    QSize legendSwatchSize() const { return graphs_->swatchSize; }

    /// Selects a tool as a click would.
    void pressTool(Tool tool) { toolbox_->press(tool); }
    Tool activeTool() const { return toolbox_->pressed(); }

    /// Whether the window was closed or Exit was chosen: the program is about to end.
    bool ending() const { return ending_; }

    PolarGraph& pgPolarGraph() { return ui_.pgPolarGraph->graph(); }
    const FrmMainControls& controls() const { return ui_; }

    /// The action of a menu entry by its name, such as "mnuFileOption_1"; null if there is none.
    QAction* menuAction(const std::string& name) const;

 protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    using Commands = std::map<std::string, std::function<void()>>;

    void makeMenus();
    void makeToolbars();
    void followPlot();
    Commands commands();
    Commands fileCommands();
    Commands editCommands();
    Commands viewCommands();
    Commands optionCommands();
    Commands graphCommands();
    void runEntry(const char* name, int index);
    template <typename Form, typename... Values>
    void process(Values... values);
    template <typename Form, typename... Values>
    void processFiles(const std::vector<std::string>& paths, Values... values);
    void processRawFiles(const std::vector<std::string>& paths, InputKind kind);
    void openDropped(const std::vector<std::string>& paths);
    void showGuide();

    bool openFrqFile(const std::string& path);
    void chooseFrqFile(const std::string& path);
    std::string askForFrqFile();
    void makeHabits();
    void showRecentFiles();
    void selectPage();
    void copyTo();
    void mnuEdit_Open();
    void showBatchMode();
    ProcessingWindow processingWindow();
    void toggleShown(const char* entry, QWidget& bar);
    void selectWindRose();
    void viewFrqFile();
    void showAbout(const QString& title = {});

    void lockWhileDrawing(bool value);
    void escape();
    static std::map<std::string, std::string> toolbarEntries();
    void trackPosition(float bearing, float radial);
    void followSelection();
    void beginProgress(const GrapInfo& graph);
    bool hasCommand(const std::string& entry) const { return commands_.contains(entry); }
    bool isOfUse(const MenuEntry& entry) const {
        return entry.kind == EntryKind::Menu || hasCommand(entry.name);
    }

    Host& host_;
    FrmMainControls ui_;
    std::map<std::string, QAction*> actions_;
    Commands commands_;
    std::unique_ptr<Toolbox> toolbox_;
    std::unique_ptr<GraphList> graphs_;
    QPointer<QDialog> guide_;
    bool ending_ = false;  ///< closed, or Exit was chosen
    BatchStarter starter_;
};

}  // namespace zg
