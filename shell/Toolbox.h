#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <string>

#include "base/Host.h"
#include "shell/FrmMainControls.h"

class QAction;

namespace zg {

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

/// The tools of the main window, with the lists of aspect ratios and zooms: what each sets in the plot, and
/// which pointer it has.
class Toolbox : public QObject {
 public:
    /// The function is called when the plot may have gained or lost its selection.
    Toolbox(QWidget& window, Host& host, const FrmMainControls& ui,
            const std::map<std::string, QAction*>& actions, std::function<void()> followSelection);

    /// Selects a tool as a click would.
    void press(Tool tool);
    Tool pressed() const { return pressed_; }

    /// Sets the plot's pointer by its number.
    void loadCursor(ToolCursor id);

    /// Sets the aspect ratio of that menu entry; asks for one if the entry has none.
    void chooseAspect(int entry);

    void setZoom(std::int16_t percent);
    void askForZoom();

    /// With its tool selected, a click on the plot moves to the next row of the list; each step acts like a
    /// click on the row.
    void stepList();

    /// Moves to the next zoom of the list in that direction, 1 or -1; stays at the list's ends.
    void turnZoom(int direction);

    // The pointer on the page.
    void mouseDown(std::int16_t button);
    void mouseMove(std::int16_t button);
    void mouseUp(std::int16_t button);

    /// Enables the tools that would disturb a curve being drawn, or disables them.
    void setFree(bool value);

 private:
    PolarGraph& plot() { return ui_.pgPolarGraph->graph(); }
    void customEntryOnEnter(QListWidget& list, std::function<void()> show);
    void dropSelection();
    void lstAspect_Click(int row);
    void lstZoom_Click(int row);
    void showAspectDialog();
    void showZoomDialog();

    QWidget& window_;
    Host& host_;
    const FrmMainControls& ui_;
    const std::map<std::string, QAction*>& actions_;
    std::function<void()> followSelection_;
    Tool pressed_ = Tool::Arrow;
    bool panDragging_ = false;
};

}  // namespace zg
