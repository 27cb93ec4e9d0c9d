#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Host.h"
#include "dialogs/point/PointDialog.h"
#include "platform/BatchStarter.h"
#include "shell/FrmMainControls.h"
#include "shell/MenuTree.h"

namespace zg {

class frmTable;

/// Resource numbers of the program's own pointers.
enum class ToolCursor {
    ColourBox = 101,
    Aspect = 103,
    Circular = 104,
    Pan = 105,
    PanDragging = 106,
    Select = 107,
    Zoom = 108
};

/// The main window: the plot, the list of graphs, and the menus that act on them. Each command is connected
/// in one place, by the name of its entry; an entry without a command is disabled.
class frmMain : public QMainWindow {
    Q_OBJECT

 public:
    explicit frmMain(Host& host);

    /// What the window does once before it is first shown: reads the configuration, finds the background
    /// picture, and initialises zoom, radius and labels. An error ends it at that point.
    void Form_Load();

    /// Runs the File entry of that index, as a click would: 1 opens an FRQ file, 12 saves the page as a
    /// bitmap. In batch mode neither asks for a file.
    void mnuFileOption_Click(int Index);
    void mnuEditOption_Click(int Index);
    void mnuViewAspectOption_Click(int Index);
    void mnuViewZoomSize_Click(int Index);

    /// Loads an FRQ file into the plot. The title names the file first, even if it then fails to load.
    void PlotFrqFile(const std::string& path);

    /// Appends the row of the plot's curve of that number, from 1, to the list.
    void AddGraph(std::int16_t Index);

    /// Executes the context menu entry of that index on the selected rows of the list.
    void mnuGraphOption_Click(int Index);

    /// Sets the plot's pointer by its number.
    void LoadToolCursor(ToolCursor id);

    /// Puts the picture of that name from the program's Bitmap directory on the plot; false if there is none.
    /// Raises 481 for a file that is not a picture.
    bool LoadBackgroundPicture(const std::string& name);

    /// Size in pixels of the picture in which a graph's swatch is drawn.
    void SizeLegendSwatch();
    QSize legendSwatchSize() const { return picTemp_; }

    /// Selects a tool as a click would.
    void pressTool(Tool tool);
    Tool activeTool() const { return activeToolButton_; }

    /// Whether the window was closed or Exit was chosen: the program is about to end.
    bool ending() const { return ending_; }

    PolarGraph& pgPolarGraph() { return ui_.pgPolarGraph->graph(); }
    const FrmMainControls& controls() const { return ui_; }

    /// The action of a menu entry by its name, such as "mnuFileOption_1"; null if there is none.
    QAction* menuAction(const std::string& name) const;

 protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void makeMenus();
    std::map<std::string, std::function<void()>> commands();
    void makeToolbars();
    void followPlot();

    void openFrqFile();
    void mnuEdit_Open();
    void showBatchMode();
    ProcessingWindow processingWindow();
    void toggleShown(const char* entry, QWidget& bar);
    void viewFrqFile();
    void showAbout(const QString& title = {});
    struct CurveTexts {
        std::string coefficient;
        std::string equation;
    };
    void connectGraphList();
    std::vector<int> selectedRows() const;
    GrapInfo& graphOfRow(int row);
    void rebuildGraphList();
    void selectOnly(int row);
    void listPlot();
    std::optional<CurveTexts> checkedTexts();
    void cmdPlot_Click();
    void cmdReplace_Click();
    void cmdExpr_Click();
    void cmbFunction_Change();
    void cmbFunction_Click(int index);
    void lvwTable_ItemClick();
    void showInEditRow(int row);
    void popUpGraphMenu(const QPoint& at);
    void mnuGraph_Open();
    void hideSelected(bool hide);
    void deleteSelected();
    void playSelected();
    void showTable();
    std::unique_ptr<frmTable> sampledTable(const GrapInfo& graph, const QPixmap& swatch);
    void showProperties();

    void lockWhileDrawing(bool value);
    void pgPolarGraph_Click();
    static std::map<std::string, std::string> toolbarEntries();
    QToolButton& toolButton(Tool tool) { return *ui_.toolboxButtons[static_cast<std::size_t>(tool) - 1]; }

    void toolDropsSelection();
    void lstAspect_Click(int row);
    void lstZoom_Click(int row);
    void customEntryOnEnter(QListWidget& list, std::function<void()> show);
    void showAspectDialog();
    void showZoomDialog();
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
    std::map<std::string, std::function<void()>> commands_;
    Tool activeToolButton_ = Tool::Arrow;
    bool panDragging_ = false;
    bool ending_ = false;    ///< closed, or Exit was chosen
    bool plotting_ = false;  ///< the Plot button's command is running
    BatchStarter starter_;
    QSize picTemp_;
};

}  // namespace zg
