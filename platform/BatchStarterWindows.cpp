#include <qt_windows.h>

#include <QProcess>

#include "base/Files.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "platform/BatchScript.h"
#include "platform/BatchStarter.h"
#include "platform/QtText.h"

namespace zg {

/// The shell's console is a window of its own, or none at all.
void BatchStarter::start(const std::string& batchFile, WindowStyle style) {
    if (!fileExists(batchFile)) raise(ErrorNumber::FileNotFound);
    QProcess shell;
    shell.setProgram(QStringLiteral("cmd.exe"));
    // As they stand: the toolkit would put the quotes of the path in quotes of its own.
    shell.setNativeArguments(fileName(shellArguments(batchFile)));
    shell.setCreateProcessArgumentsModifier([style](QProcess::CreateProcessArguments* process) {
        process->flags &= ~static_cast<unsigned long>(CREATE_NO_WINDOW);
        process->flags |= style == WindowStyle::Hidden ? CREATE_NO_WINDOW : CREATE_NEW_CONSOLE;
        // Those of a program with windows lead nowhere: "pause" would not wait.
        process->startupInfo->dwFlags &= ~static_cast<unsigned long>(STARTF_USESTDHANDLES);
    });
    if (!shell.startDetached()) raise(ErrorNumber::InvalidProcedureCall);
}

/// The lines copy whatever listing is there to the marker. If the processor is missing or crashes, that of an
/// earlier run would show its roses as those of this one.
void BatchStarter::startRun(const RunBatch& run) {
    const std::string listing = run.outputDirectory + run.base + "_tempoline.lst";
    if (fileExists(listing) && !removeFile(listing))
        throw RunTimeError(static_cast<int>(ErrorNumber::PermissionDenied),
                           "Permission denied: " + listing + ", of an earlier run, cannot be removed");
    ProcessStarter::startRun(run);
}

void BatchStarter::startViewer(const std::string& batchFile, const std::string& path) {
    ProcessStarter::startViewer(batchFile, path);
}

/// The console itself tells the person.
std::string BatchStarter::outcome(const std::string&) { return {}; }

}  // namespace zg
