#pragma once

#include <QObject>
#include <QSize>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Host.h"
#include "shell/FrmMainControls.h"

class QAction;

namespace zg {

class frmTable;

/// What the list of graphs needs from the window around it.
struct GraphListHooks {
    std::function<void()> pressArrow;            ///< selects the pointer tool
    std::function<void(bool)> lockWhileDrawing;  ///< false at the start of a long sweep, true at its end
    std::function<void(const GrapInfo&)> beginProgress;  ///< shows the bar for the sweep of that graph
};

/// The list of graphs, the row of boxes that edits one of them, and the commands of the list's context menu,
/// which act on the selected rows.
class GraphList : public QObject {
 public:
    GraphList(QWidget& window, Host& host, const FrmMainControls& ui,
              const std::map<std::string, QAction*>& actions, GraphListHooks hooks);

    /// Size in pixels of the picture in which a graph's swatch is drawn.
    QSize swatchSize;

    /// Appends the row of the plot's curve of that number, from 1.
    void add(std::int16_t index);

    /// Shows in the row of the curve of that number whether its last painting failed.
    void showFailure(std::int16_t index);

    /// Shows the plot's curves, the first one in the boxes.
    void listPlot();

    /// Selection by code: nothing of the row is copied to the boxes.
    void selectOnly(int row);

    void hideSelected(bool hide);
    void deleteSelected();
    void selectAll();
    void playSelected();
    void showTable();
    void showProperties();

    /// Enables the controls that would disturb a curve being drawn, or disables them.
    void setFree(bool value);

 private:
    struct CurveTexts {
        std::string coefficient;
        std::string equation;
    };

    PolarGraph& plot() { return ui_.pgPolarGraph->graph(); }
    void connectBoxes();
    void connectTable();
    std::vector<int> selectedRows() const;
    GrapInfo& graphOfRow(int row);
    void rebuild();
    std::optional<CurveTexts> checkedTexts();
    void cmdPlot_Click();
    void cmdReplace_Click();
    void cmdExpr_Click();
    void cmbFunction_Change();
    void cmbFunction_Click(int index);
    void lvwTable_ItemClick();
    void showInEditRow(int row);
    void showColours(int row);
    void popUpMenu(const QPoint& at);
    void mnuGraph_Open();
    std::unique_ptr<frmTable> sampledTable(const GrapInfo& graph, const QPixmap& swatch);

    QWidget& window_;
    Host& host_;
    const FrmMainControls& ui_;
    const std::map<std::string, QAction*>& actions_;
    GraphListHooks hooks_;
    bool plotting_ = false;  ///< the Plot button's command is running
};

}  // namespace zg
