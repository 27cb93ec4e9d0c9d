#include "platform/BatchStarter.h"

#include <QProcess>

#include "base/Lines.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/QtText.h"

namespace zg {

namespace {

[[maybe_unused]] void startShell(const std::string& batchFile, WindowStyle style) {
    QStringList words = {QStringLiteral("/c"), QStringLiteral("start"), QStringLiteral("\"\"")};
    if (style == WindowStyle::Hidden) words.append(QStringLiteral("/b"));
    words.append(fileName(batchFile));
    if (!QProcess::startDetached(QStringLiteral("cmd"), words)) raise(ErrorNumber::InvalidProcedureCall);
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
    LineReader lines(batchFile);
    while (!lines.atEnd())
        if (const std::string path = viewedFile(lines.readLine()); !path.empty()) showText(path);
#endif
}

}  // namespace zg
