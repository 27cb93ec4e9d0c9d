#include "shell/Toolbox.h"

#include <QAction>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "base/Numbers.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "settings/CfgFile.h"
#include "settings/Settings.h"
#include "shell/FrmAspect.h"
#include "shell/FrmZoom.h"
#include "shell/Resources.h"

namespace zg {

namespace {

constexpr std::int16_t customPointer = 99;
constexpr int aspectEntries = 4;
constexpr int customAspectRow = 4;
constexpr int customZoomRow = 14;
constexpr std::int32_t selectTool = 4;

/// Runs an action when Enter is pressed in a list.
class EnterFilter : public QObject {
 public:
    EnterFilter(QObject* parent, std::function<void()> action)
        : QObject(parent), action_(std::move(action)) {}

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
        action_();
        return true;
    }

 private:
    std::function<void()> action_;
};

}  // namespace

Toolbox::Toolbox(QWidget& window, Host& host, const FrmMainControls& ui,
                 const std::map<std::string, QAction*>& actions, std::function<void()> followSelection)
    : window_(window), host_(host), ui_(ui), actions_(actions), followSelection_(std::move(followSelection)) {
    for (std::size_t i = 0; i < ui_.toolboxButtons.size(); ++i)
        connect(ui_.toolboxButtons[i], &QToolButton::clicked, this,
                guarded(host_, [this, i] { press(static_cast<Tool>(i + 1)); }));
    ui_.lstAspect->onChoice = guarded(host_, [this](int row) { lstAspect_Click(row); });
    ui_.lstZoom->onChoice = guarded(host_, [this](int row) { lstZoom_Click(row); });
    customEntryOnEnter(*ui_.lstAspect, [this] { showAspectDialog(); });
    customEntryOnEnter(*ui_.lstZoom, [this] { showZoomDialog(); });
}

void Toolbox::customEntryOnEnter(QListWidget& list, std::function<void()> show) {
    list.installEventFilter(new EnterFilter(this, guarded(host_, [&list, show = std::move(show)] {
                                                if (list.currentRow() == list.count() - 1) show();
                                            })));
}

void Toolbox::press(Tool tool) {
    struct Row {
        std::int32_t setActiveTool;
        std::int16_t pointer;  ///< 0 for the cursor
        ToolCursor cursor;
    };
    static const std::map<Tool, Row> rows = {{Tool::Arrow, {0, 1, {}}},
                                             {Tool::Select, {4, 0, ToolCursor::Select}},
                                             {Tool::Cross, {2, 2, {}}},
                                             {Tool::Circular, {1, 0, ToolCursor::Circular}},
                                             {Tool::Pan, {3, 0, ToolCursor::Pan}},
                                             {Tool::Aspect, {0, 0, ToolCursor::Aspect}},
                                             {Tool::Zoom, {0, 0, ToolCursor::Zoom}}};
    ui_.toolboxButtons[static_cast<std::size_t>(tool) - 1]->setChecked(true);
    ui_.lstAspect->hide();
    ui_.lstZoom->hide();
    const Row& row = rows.at(tool);
    plot().SetActiveTool(row.setActiveTool);
    if (row.pointer == 0)
        loadCursor(row.cursor);
    else
        plot().MousePointer(row.pointer);
    if (tool == Tool::Aspect) ui_.lstAspect->show();
    if (tool == Tool::Zoom) ui_.lstZoom->show();
    pressed_ = tool;
    followSelection_();
}

void Toolbox::loadCursor(ToolCursor id) {
    plot().MousePointer(customPointer);
    plot().MouseIcon(cursorPicture(static_cast<int>(id)));
}

void Toolbox::dropSelection() {
    if (plot().SetActiveTool() != selectTool) return;
    plot().SetActiveTool(0);
    plot().SetActiveTool(selectTool);
    loadCursor(ToolCursor::Select);  // the plot has set its own pointer
    followSelection_();
}

void Toolbox::chooseAspect(int entry) {
    if (entry < 0 || entry >= aspectEntries) {
        showAspectDialog();
    } else {
        QAction* action = actions_.at("mnuViewAspectOption_" + std::to_string(entry));
        action->setChecked(true);
        const float ratio = toSingle(val(typed(action->text())));
        if (ratio != plot().AspectRatio()) {
            {
                const QSignalBlocker quiet(ui_.lstAspect);
                ui_.lstAspect->setCurrentRow(entry);
            }
            plot().AspectRatio(ratio);
        }
    }
    dropSelection();
}

void Toolbox::lstAspect_Click(int row) {
    if (row < 0) return;
    if (row == customAspectRow) {
        chooseAspect(row);
        return;
    }
    const float ratio = toSingle(val(typed(ui_.lstAspect->item(row)->text())));
    if (ratio != plot().AspectRatio()) chooseAspect(row);
}

void Toolbox::lstZoom_Click(int row) {
    if (row < 0) return;
    settings.ZoomListIndex = static_cast<std::int16_t>(row);
    if (row == customZoomRow) {
        WriteCfgFile(settings.CfgFilePath);
        showZoomDialog();
        return;
    }
    const std::int16_t percent = toInt16(intFloor(val(typed(ui_.lstZoom->item(row)->text()))));
    if (percent != plot().Zoom()) plot().Zoom(percent);
    settings.ZoomPercentText = std::to_string(percent);
    WriteCfgFile(settings.CfgFilePath);
}

void Toolbox::setZoom(std::int16_t percent) {
    plot().Zoom(percent);
    dropSelection();
}

void Toolbox::askForZoom() {
    showZoomDialog();
    dropSelection();
}

void Toolbox::showAspectDialog() { frmAspect(host_, plot(), &window_).exec(); }

void Toolbox::showZoomDialog() { frmZoom(host_, plot(), &window_).exec(); }

void Toolbox::stepList() {
    const auto step = [](ChoiceList& list, int lastToStepFrom) {
        const int row = list.currentRow();
        list.setCurrentRow(row >= 0 && row <= lastToStepFrom ? row + 1 : 0);
    };
    constexpr int lastAspectStep = 2;
    constexpr int lastZoomStep = 12;
    if (pressed_ == Tool::Aspect) step(*ui_.lstAspect, lastAspectStep);
    if (pressed_ == Tool::Zoom) step(*ui_.lstZoom, lastZoomStep);
}

void Toolbox::turnZoom(int direction) {
    const int present = plot().Zoom();
    const auto percent = [this](int row) {
        return static_cast<int>(val(typed(ui_.lstZoom->item(row)->text())));
    };
    int next = -1;  // the nearest row beyond the present zoom, which need not be in the list
    for (int row = 0; row < customZoomRow; ++row) {
        const int steps = (percent(row) - present) * direction;
        if (steps > 0 && (next < 0 || steps < (percent(next) - present) * direction)) next = row;
    }
    if (next < 0) return;
    const QSignalBlocker quiet(ui_.lstZoom);
    ui_.lstZoom->setCurrentRow(next);
    lstZoom_Click(next);
}

void Toolbox::mouseDown(std::int16_t button) {
    if (button != leftButton || pressed_ != Tool::Pan) return;
    panDragging_ = true;
    loadCursor(ToolCursor::PanDragging);
}

void Toolbox::mouseMove(std::int16_t button) {
    if (button == leftButton && pressed_ == Tool::Pan && !panDragging_) loadCursor(ToolCursor::PanDragging);
}

void Toolbox::mouseUp(std::int16_t button) {
    if (button != leftButton || pressed_ != Tool::Pan) return;
    panDragging_ = false;
    loadCursor(ToolCursor::Pan);
}

void Toolbox::setFree(bool value) {
    for (const Tool tool : {Tool::Select, Tool::Aspect, Tool::Zoom})
        ui_.toolboxButtons[static_cast<std::size_t>(tool) - 1]->setEnabled(value);
}

}  // namespace zg
