#include <fcntl.h>
#include <io.h>

#include <cstdlib>

#include "base/Console.h"
#include "base/Paths.h"
#include "base/WindowsNames.h"

// Must come after it, since it needs the system's types.
#include <shellapi.h>

namespace zg {

namespace {

void (*noteStop)() = nullptr;

/// Runs in a thread of its own. For a closed console or an ending session the system ends the process as soon
/// as this returns, so it waits until the program has ended by itself.
BOOL WINAPI stopEvent(DWORD event) {
    noteStop();
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(INFINITE);
    return TRUE;
}

UINT formerOutput = 0;

void restoreConsole() { SetConsoleOutputCP(formerOutput); }

/// Nothing if the code page lacks one of the characters.
std::optional<std::string> inCodePage(std::string_view text, UINT page) {
    if (text.empty()) return std::string();
    const std::wstring wide = wideUnits(text);
    const auto units = static_cast<int>(wide.size());
    std::string bytes(wide.size() * 4, '\0');
    BOOL isLossy = FALSE;
    const bool knowsLoss = page != CP_UTF8 && page != CP_UTF7;
    const int length =
        WideCharToMultiByte(page, knowsLoss ? WC_NO_BEST_FIT_CHARS : 0, wide.data(), units, bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, knowsLoss ? &isLossy : nullptr);
    if (length <= 0 || isLossy != FALSE) return {};
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

}  // namespace

std::vector<std::string> programWords(int, char**) {
    std::vector<std::string> words;
    int count = 0;
    wchar_t** const all = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; all != nullptr && i < count; ++i) words.push_back(narrowUnits(all[i]));
    LocalFree(all);
    return words;
}

std::string programDirectory() {
    constexpr std::size_t longest = 32768;  // no longer path exists
    std::wstring path(longest, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    path.resize(length < path.size() ? length : 0);
    return DirOf(narrowUnits(path));
}

void useUtf8Console() {
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    formerOutput = GetConsoleOutputCP();
    if (formerOutput == 0 || formerOutput == CP_UTF8) return;
    SetConsoleOutputCP(CP_UTF8);
    std::atexit(restoreConsole);
}

void catchStops(void (*note)()) {
    noteStop = note;
    SetConsoleCtrlHandler(stopEvent, TRUE);
}

/// The shell reads a batch file in the code page with which its console starts.
std::optional<std::string> batchText(std::string_view text) { return inCodePage(text, GetOEMCP()); }

std::optional<std::string> libraryText(std::string_view text) { return inCodePage(text, GetACP()); }

std::string plainerName(const std::string& path) {
    const std::wstring wide = systemName(path);
    std::wstring plain(GetShortPathNameW(wide.c_str(), nullptr, 0), L'\0');
    const DWORD length = GetShortPathNameW(wide.c_str(), plain.data(), static_cast<DWORD>(plain.size()));
    if (length == 0 || length >= plain.size()) return path;
    plain.resize(length);
    return narrowUnits(plain);
}

bool isTerminal(std::FILE* file) { return _isatty(_fileno(file)) != 0; }

}  // namespace zg
