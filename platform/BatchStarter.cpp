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

/// In a session of its own, so that what ends the program does not end the script. On a desktop it runs in a
/// terminal that stays open until a key is pressed; elsewhere its output is that of the program.
[[maybe_unused]] void startScript(const std::string& script) {
    const QString terminal = QStandardPaths::findExecutable(QStringLiteral("x-terminal-emulator"));
    const QString platform = QGuiApplication::platformName();
    const bool onDesktop = platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
    QString text = fileName(script);
    QStringList words = {QStringLiteral("sh"), QStringLiteral("-c")};
    if (onDesktop && !terminal.isEmpty()) {
        text += QStringLiteral("printf 'Press Enter to close this window. '; read -r key\n");
        words.prepend(QStringLiteral("-e"));
        words.prepend(terminal);
    }
    words.append(text);
    if (!QProcess::startDetached(QStringLiteral("setsid"), words)) raise(ErrorNumber::InvalidProcedureCall);
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
