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

constexpr std::size_t mostLines = 5;

/// The lines of a small file; one line more than the program writes means that another program wrote it.
std::vector<std::string> firstLines(const std::string& batchFile) {
    std::vector<std::string> lines;
    LineReader reader(batchFile);
    while (!reader.atEnd() && lines.size() <= mostLines) lines.emplace_back(reader.readLine());
    return lines;
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

/// Others may be able to write in the directory too: run only this program's processor, and only there.
bool isOwnRun(const RunBatch& run, const std::string& batchFile) {
    return run.outputDirectory + "run_tempoline.bat" == batchFile &&
           run.programDirectory == applicationDirectory;
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

void BatchStarter::start(const std::string& batchFile, WindowStyle style) {
    static_cast<void>(style);  // here only the viewer opens a window of its own
    const std::vector<std::string> lines = firstLines(batchFile);
    if (const std::string path = lines.size() == 1 ? viewedFile(lines[0]) : std::string(); !path.empty())
        return showText(path);
    const auto run = readRunBatch(lines);
    if (!run || !isOwnRun(*run, batchFile))
        throw RunTimeError(static_cast<int>(ErrorNumber::InvalidProcedureCall),
                           "Invalid procedure call or argument: " + batchFile +
                               " holds other lines than this program writes");
    if (!startDetached(scriptCommand(asShellScript(*run, newReport(batchFile)), terminalProgram())))
        raise(ErrorNumber::InvalidProcedureCall);
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
