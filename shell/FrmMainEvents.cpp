// How the main window reacts to the events of its plot.

#include <QCursor>
#include <QMenu>
#include <QTimer>

#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "platform/Errors.h"
#include "platform/QtText.h"
#include "shell/FrmMain.h"
#include "shell/MenuTree.h"

namespace zg {

namespace {

constexpr std::int16_t escapeKey = 27;

QString twoDecimals(double value) { return shown(doubleText(roundHalfEven(value, 2))); }

}  // namespace

void frmMain::followPlot() {
    PolarGraphEvents& events = pgPolarGraph().events;
    events.DrawBegin = [this](bool& value) { lockWhileDrawing(value); };
    events.Click = [this] { toolbox_->stepList(); };
    events.BeforeGraph = [this](std::int16_t& index) {
        beginProgress(pgPolarGraph().Plot().Item(std::int64_t{index}));
    };
    events.TrackPosition = [this](float, float, float bearing, float, float, float, float radial) {
        trackPosition(bearing, radial);
    };
    events.MouseDown = [this](std::int16_t button, std::int16_t, float, float) {
        toolbox_->mouseDown(button);
    };
    events.MouseMove = [this](std::int16_t button, std::int16_t, float, float) {
        toolbox_->mouseMove(button);
        followSelection();
    };
    events.MouseUp = [this](std::int16_t button, std::int16_t, float, float) {
        toolbox_->mouseUp(button);
        QTimer::singleShot(0, this, [this] { followSelection(); });  // the plot makes the selection next
        if (button == rightButton) actions_.at("mnuEdit")->menu()->popup(QCursor::pos());
    };
    events.KeyDown = [this](std::int16_t& keyCode, std::int16_t) {
        if (keyCode != escapeKey) return;
        keyCode = 0;
        escape();
    };
    events.DrawProgress = [this](float, float, float, float, float) { ui_.pgbProgressBar->advance(); };
    events.CurveEnded = [this](std::int16_t index) { graphs_->showFailure(index); };
    connect(ui_.pgPolarGraph, &PolarGraphWidget::aboutRequested, this,
            guarded(host_, [this](const QString& title) { showAbout(title); }));
}

/// Called with false at the start of a curve and true at its end: meanwhile everything that could disturb it
/// is disabled. An entry that neither runs a command nor opens a menu stays disabled.
void frmMain::lockWhileDrawing(bool value) {
    const std::map<std::string, std::string> entryOf = toolbarEntries();
    for (const auto& [key, button] : ui_.toolbarButtons) {
        const auto entry = entryOf.find(key);
        button->setEnabled(value && entry != entryOf.end() && hasCommand(entry->second));
    }
    for (const MenuEntry& entry : menuTree())
        if (entry.lock == Lock::WhileDrawing) actions_.at(entry.name)->setEnabled(value && isOfUse(entry));
    if (!value) ui_.pgPolarGraph->setInvitation({});
    graphs_->setFree(value);
    toolbox_->setFree(value);
    if (value) ui_.pgbProgressBar->hide();
}

/// Ends a curve being drawn, else cancels the tool's drag or selection, else returns to the pointer tool.
void frmMain::escape() {
    if (!pgPolarGraph().StopAni())
        pgPolarGraph().StopAni(true);
    else if (!pgPolarGraph().cancelTool() && activeTool() != Tool::Arrow)
        pressTool(Tool::Arrow);
    followSelection();
}

void frmMain::trackPosition(float bearing, float radial) {
    ui_.panels[1]->setText(QStringLiteral("Angle = ") + twoDecimals(static_cast<double>(bearing)) +
                           QChar(176));
    ui_.panels[2]->setText(QStringLiteral("Percent = ") + twoDecimals(10.0 * static_cast<double>(radial)) +
                           QLatin1Char('%'));
}

/// The bar counts the steps of the next graph to be drawn.
void frmMain::beginProgress(const GrapInfo& graph) {
    if (graph.Step == 0) zg::raise(ErrorNumber::DivisionByZero);
    const double steps =
        static_cast<double>(graph.EndingAngle - graph.StartingAngle) / static_cast<double>(graph.Step);
    ui_.pgbProgressBar->begin(steps + 1);
}

/// The edit entries are enabled together with the button, and so are their keys.
void frmMain::followSelection() {
    const bool selected = pgPolarGraph().ActiveSelection();
    ui_.toolbarButtons.at("copy")->setEnabled(hasCommand("mnuEditOption_0") && selected);
    mnuEdit_Open();
}

}  // namespace zg
