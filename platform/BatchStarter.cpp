#include "platform/BatchStarter.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <vector>

#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/BatchScript.h"
#include "platform/QtText.h"

namespace zg {

namespace {

[[maybe_unused]] void startShell(const std::string& batchFile, WindowStyle style) {
    QStringList words = {QStringLiteral("/c"), QStringLiteral("start"), QStringLiteral("\"\"")};
    if (style == WindowStyle::Hidden) words.append(QStringLiteral("/b"));
    words.append(fileName(batchFile));
    if (!QProcess::startDetached(QStringLiteral("cmd"), words)) raise(ErrorNumber::InvalidProcedureCall);
}

/// Path of the desktop's terminal program; "" where there is no desktop or no such program.
[[maybe_unused]] std::string terminalProgram() {
    const QString platform = QGuiApplication::platformName();
    const bool onDesktop = platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
    if (!onDesktop) return {};
    return filePath(QStandardPaths::findExecutable(QStringLiteral("x-terminal-emulator")));
}

/// Without a terminal the script's output is that of the program.
[[maybe_unused]] void startScript(const std::string& script) {
    QStringList words;
    for (const std::string& word : scriptCommand(script, terminalProgram())) words.append(fileName(word));
    const QString program = words.takeFirst();
    if (!QProcess::startDetached(program, words)) raise(ErrorNumber::InvalidProcedureCall);
}

/// The desktop's own viewer stands for the one that the line names.
void showText(const std::string& path) {
    if (!QProcess::startDetached(QStringLiteral("xdg-open"), {fileName(path)}))
        throw RunTimeError(static_cast<int>(ErrorNumber::FileNotFound),
                           "File not found: xdg-open, which shows text files on this desktop");
}

}  // namespace

std::string viewedFile(std::string_view line) {
    constexpr std::string_view command = "notepad ";
    line = trimmed(line);
    return line.starts_with(command) ? removeQuotes(line.substr(command.size())) : std::string();
}

void BatchStarter::start(const std::string& batchFile, WindowStyle style) {
#ifdef _WIN32
    startShell(batchFile, style);
#else
    static_cast<void>(style);  // nothing opens a window of its own here but the viewer
    std::vector<std::string> others;
    LineReader lines(batchFile);
    while (!lines.atEnd()) {
        const std::string line(lines.readLine());
        if (const std::string path = viewedFile(line); !path.empty())
            showText(path);
        else
            others.push_back(line);
    }
    if (const std::string script = asShellScript(others); !script.empty()) startScript(script);
#endif
}

}  // namespace zg
