#include <unistd.h>

#include <csignal>

#include "base/Console.h"
#include "base/Files.h"
#include "base/Paths.h"

namespace zg {

namespace {

void (*noteStop)() = nullptr;

void stopSignal(int) { noteStop(); }

}  // namespace

std::vector<std::string> programWords(int argc, char** argv) {
    return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

std::string programDirectory() { return DirOf(wholePath("/proc/self/exe")); }

void useUtf8Console() {}

void catchStops(void (*note)()) {
    noteStop = note;
    struct sigaction action = {};
    action.sa_handler = stopSignal;  // without SA_RESTART, so that a read that waits for a pipe returns
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    struct sigaction former = {};
    if (sigaction(SIGHUP, nullptr, &former) == 0 && former.sa_handler != SIG_IGN)  // nohup ignores it
        sigaction(SIGHUP, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);  // exceeding the file size limit becomes a write error
}

std::optional<std::string> batchText(std::string_view text) { return std::string(text); }

std::optional<std::string> libraryText(std::string_view text) { return std::string(text); }

std::string plainerName(const std::string& path) { return path; }

bool isTerminal(std::FILE* file) { return isatty(fileno(file)) != 0; }

}  // namespace zg
