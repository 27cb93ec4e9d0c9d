#include "shell/RecentFiles.h"

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "settings/WholeText.h"

namespace zg {

namespace {

constexpr std::size_t most = 8;

std::string listPath() { return inSettingsDirectory("recent.txt"); }

/// A relative path means another file once the program is started elsewhere.
std::string absolute(const std::string& path) {
    const std::string whole = wholePath(path);
    return whole.empty() ? path : whole;
}

std::vector<std::string> listedFiles() {
    std::vector<std::string> paths;
    try {
        for (LineReader lines(listPath()); !lines.atEnd() && paths.size() < most;)
            paths.emplace_back(lines.readLine());
    } catch (const RunTimeError&) {
        return paths;  // no list yet
    }
    return paths;
}

}  // namespace

std::vector<std::string> recentFiles() {
    std::vector<std::string> paths = listedFiles();
    std::erase_if(paths, [](const std::string& path) { return !fileExists(path); });
    return paths;
}

void rememberFile(const std::string& path) {
    // The list cannot hold a name with a line end.
    if (applicationDirectory.empty() || path.find_first_of("\r\n") != std::string::npos) return;
    const std::string first = absolute(path);
    std::vector<std::string> paths = recentFiles();
    std::erase(paths, first);
    paths.insert(paths.begin(), first);
    if (paths.size() > most) paths.resize(most);
    std::string text;
    for (const std::string& each : paths) text += each + "\r\n";
    replaceFile(listPath(), text);
}

}  // namespace zg
