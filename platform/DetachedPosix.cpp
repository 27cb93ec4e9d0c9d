#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>

#include "platform/Detached.h"
#include "platform/QtText.h"

namespace zg {

std::string programInPath(const std::string& name) {
    return filePath(QStandardPaths::findExecutable(fileName(name)));
}

namespace {

/// Signals that the toolkit ignores or blocks in this program have their defaults in the new one.
void usePlainSignals() {
    for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGCHLD, SIGTERM})
        std::signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// In the child process, where other threads may have held locks: only system calls are safe. The program is
/// a child of this child, which ends at once, so that the system's first process collects it when it ends.
[[noreturn]] void becomeProgram(char* const* arguments, int failed) {
    setsid();
    const pid_t own = fork();
    if (own > 0) _exit(0);
    if (own == 0) {
        usePlainSignals();
        execv(arguments[0], arguments);
    }
    const char sign = 'x';
    const ssize_t written = write(failed, &sign, 1);
    _exit(written == 1 ? 127 : 126);
}

}  // namespace

bool startDetached(const std::vector<std::string>& words) {
    std::vector<std::string> all = words;
    all.at(0) = programInPath(words[0]);
    std::vector<char*> arguments;
    for (std::string& word : all) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    int ends[2] = {};
    if (all[0].empty() || pipe2(ends, O_CLOEXEC) != 0) return false;
    const pid_t child = fork();
    if (child == 0) becomeProgram(arguments.data(), ends[1]);
    close(ends[1]);
    char sign = 0;
    ssize_t got = 0;
    while ((got = read(ends[0], &sign, 1)) < 0 && errno == EINTR) {
    }
    close(ends[0]);
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return child > 0 && got == 0;
}

}  // namespace zg
