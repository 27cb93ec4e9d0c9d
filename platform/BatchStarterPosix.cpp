#include <QGuiApplication>
#include <vector>

#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/BatchScript.h"
#include "platform/BatchStarter.h"
#include "platform/Detached.h"
#include "platform/QtText.h"
#include "processing/BatchFile.h"

namespace zg {

namespace {

/// Other programs may be able to write in the directory too: their lines are not started.
void needOwnLines(const std::string& batchFile, const std::vector<std::string>& lines) {
    if (hasOnlyLines(batchFile, lines)) return;
    throw RunTimeError(
        static_cast<int>(ErrorNumber::InvalidProcedureCall),
        "Invalid procedure call or argument: " + batchFile + " holds other lines than this program writes");
}

/// Path of the desktop's terminal program; "" if there is no desktop or no such program.
std::string terminalProgram() {
    const QString platform = QGuiApplication::platformName();
    const bool onDesktop = platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
    return onDesktop ? programInPath("x-terminal-emulator") : std::string();
}

/// The desktop's own viewer takes the place of the one in the line.
void showText(const std::string& path) {
    if (programInPath("xdg-open").empty())
        throw RunTimeError(static_cast<int>(ErrorNumber::FileNotFound),
                           "File not found: xdg-open, which shows text files on this desktop");
    const std::string plain = path.starts_with("-") ? "./" + path : path;
    if (!startDetached({"xdg-open", plain})) raise(ErrorNumber::InvalidProcedureCall);
}

}  // namespace

/// Without a place for the report the run continues and reports nothing.
std::string BatchStarter::newReport(const std::string& batchFile) {
    if (!reports_) reports_ = std::make_unique<QTemporaryDir>();
    std::string& report = reportOfBatch_[batchFile];
    report.clear();
    if (reports_->isValid()) report = filePath(reports_->filePath(QString::number(++runs_)));
    return report;
}

/// The shell of this platform does not support batch files.
void BatchStarter::start(const std::string&, WindowStyle) { raise(ErrorNumber::InvalidProcedureCall); }

void BatchStarter::startRun(const RunBatch& run) {
    needOwnLines(run.path(), batchLines(run));
    if (!startDetached(scriptCommand(asShellScript(run, newReport(run.path())), terminalProgram())))
        raise(ErrorNumber::InvalidProcedureCall);
}

void BatchStarter::startViewer(const std::string& batchFile, const std::string& path) {
    needOwnLines(batchFile, {viewerLine(path)});
    showText(path);
}

std::string BatchStarter::outcome(const std::string& batchFile) {
    const auto report = reportOfBatch_.find(batchFile);
    if (report == reportOfBatch_.end() || report->second.empty()) return {};
    try {
        LineReader lines(report->second);
        return lines.atEnd() ? std::string() : std::string(lines.readLine());
    } catch (const RunTimeError&) {
        return {};  // the processor is still working
    }
}

}  // namespace zg
