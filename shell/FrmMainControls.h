#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeWidget>
#include <array>
#include <functional>
#include <map>
#include <string>

#include "platform/ColourBox.h"
#include "platform/PolarGraphWidget.h"

namespace zg {

/// The tools of tblToolbox by their index.
enum class Tool { Arrow = 1, Select, Cross, Circular, Pan, Aspect, Zoom };

/// A list whose rows act when they are chosen: by a click, even on the current row, by the arrow keys, or by
/// code.
class ChoiceList : public QListWidget {
 public:
    ChoiceList();

    std::function<void(int row)> onChoice;

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

 private:
    bool pressed_ = false;
};

/// A progress bar that counts far more steps than it has pixels and repaints only when the change is visible.
class StepBar : public QProgressBar {
 public:
    /// Starts at 0 and shows itself; this many steps, at least one, fill it.
    void begin(double steps);

    /// Advances by one step; when full it stays full.
    void advance();

 private:
    double steps_ = 1;
    double done_ = 0;
};

/// The list of graphs. Its columns share its width again at each resize.
class GraphTable : public QTreeWidget {
 public:
    std::function<void(const QPoint& at)>
        onPopup;                     ///< the right button was released, or the menu key pressed
    std::function<void()> onDelete;  ///< the delete key was pressed

 protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

/// The controls of the main window under their names. The window owns them.
struct FrmMainControls {
    QWidget* tblToolbar = nullptr;
    std::map<std::string, QToolButton*> toolbarButtons;  ///< new, open, save, print, copy
    QFrame* fraToolbox = nullptr;
    QWidget* tblToolbox = nullptr;
    std::array<QToolButton*, 7> toolboxButtons{};  ///< in the order of Tool
    ChoiceList* lstAspect = nullptr;
    ChoiceList* lstZoom = nullptr;
    PolarGraphWidget* pgPolarGraph = nullptr;
    QFrame* fraHolder = nullptr;
    QComboBox* cmbFunction = nullptr;
    QLineEdit* txtCoefficient = nullptr;
    std::array<ColourBox*, 2> picColor{};
    QPushButton* cmdExpr = nullptr;
    QPushButton* cmdClear = nullptr;
    QPushButton* cmdReplace = nullptr;
    QPushButton* cmdPlot = nullptr;
    GraphTable* lvwTable = nullptr;
    QStatusBar* sbStatusBar = nullptr;
    std::array<QLabel*, 3> panels{};  ///< panels 1 to 3 of the status bar
    QFrame* picTray = nullptr;
    StepBar* pgbProgressBar = nullptr;
};

/// Creates the controls and lays them out: toolbar along the top, toolbox on the left, plot in the middle,
/// equation row and list below it, status bar along the bottom. The plot draws the tables, which must outlive
/// the window.
FrmMainControls makeFrmMainControls(QMainWindow& window, Host& host, ModPolarGraph& tables);

}  // namespace zg
