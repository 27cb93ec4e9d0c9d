#include <sys/mman.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <string_view>

#include "export/Crashes.h"
#include "export/ExportRoses.h"
#include "export/PictureFile.h"

namespace zg {

namespace {

[[maybe_unused]] void crash(int signal) {
    constexpr std::size_t some = std::size_t{64} << 20;
    constexpr std::string_view fault = "zephyrgraph-export: out of memory\n";
    if (mmap(nullptr, some, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED) {
        dropUnfinishedPictures();
        [[maybe_unused]] const auto told = write(STDERR_FILENO, fault.data(), fault.size());
        _exit(exportFailed);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

}  // namespace

void tellLackOfMemory() {
#ifndef __SANITIZE_ADDRESS__  // which reports crashes itself
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT}) std::signal(signal, crash);
#endif
}

}  // namespace zg
