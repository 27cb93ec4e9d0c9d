#include "tests/support/TempDirectory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Paths.h"
#include "tests/support/Places.h"

TempDirectory::TempDirectory() {
    static int count = 0;
    const std::string stem = (std::filesystem::temp_directory_path() / "zephyrgraph-test-").string() +
                             std::to_string(zg::processNumber());
    do {
        path_ = stem + "-" + std::to_string(++count);
        errno = 0;
    } while (!zg::makeDirectory(path_) && errno == EEXIST);
    if (!zg::IsDirectory(path_)) ADD_FAILURE() << "no temporary directory";
}

TempDirectory::~TempDirectory() { zg::removeTree(path_); }

std::string TempDirectory::file(std::string_view name) const {
    return path_ + zg::pathSeparator + nativePath(std::string(name));
}

std::string TempDirectory::write(std::string_view name, std::string_view bytes) const {
    const std::string path = file(name);
    const zg::FileHandle out(zg::openStream(path, "wb"));
    EXPECT_TRUE(out && std::fwrite(bytes.data(), 1, bytes.size(), out.get()) == bytes.size() &&
                std::fflush(out.get()) == 0)
        << path;
    return path;
}

std::string TempDirectory::read(std::string_view name) const {
    const zg::FileHandle in(zg::openStream(file(name), "rb"));
    if (!in) ADD_FAILURE() << file(name) << " cannot be read";
    std::string bytes;
    std::string part(65536, '\0');
    while (const std::size_t got = in ? std::fread(part.data(), 1, part.size(), in.get()) : 0)
        bytes.append(part, 0, got);
    return bytes;
}
