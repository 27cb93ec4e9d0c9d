#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/InputFile.h"

namespace zg {

int InputFile::open(const std::string& path, void (*look)()) {
    int file = -1;
    do {
        look();
        file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    } while (file < 0 && errno == EINTR);
    if (file < 0) return errno;
    handle_ = file;
    struct stat state = {};
    if (fstat(file, &state) != 0) return errno;
    if (S_ISDIR(state.st_mode)) return EISDIR;
    plain_ = S_ISREG(state.st_mode);
    size_ = state.st_size;
    posix_fadvise(file, 0, 0, POSIX_FADV_SEQUENTIAL);
    return 0;
}

InputFile::~InputFile() {
    if (handle_ != none) close(static_cast<int>(handle_));
}

InputFile::Wait InputFile::waitForBytes(int milliseconds) const {
    pollfd state = {static_cast<int>(handle_), POLLIN, 0};
    const int ready = poll(&state, 1, milliseconds);
    if (ready > 0) return Wait::Ready;
    return ready == 0 || errno == EINTR ? Wait::Nothing : Wait::Failed;
}

std::ptrdiff_t InputFile::read(char* place, std::size_t size) {
    return ::read(static_cast<int>(handle_), place, size);
}

}  // namespace zg
