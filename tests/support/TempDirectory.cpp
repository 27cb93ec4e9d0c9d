#include "tests/support/TempDirectory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

TempDirectory::TempDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "zephyrgraph-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) ADD_FAILURE() << "no temporary directory";
    path_ = name;
}

TempDirectory::~TempDirectory() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
}

std::string TempDirectory::file(std::string_view name) const { return path_ + "/" + std::string(name); }

std::string TempDirectory::write(std::string_view name, std::string_view bytes) const {
    const std::string path = file(name);
    std::ofstream out(path, std::ios::binary);
    out << bytes;
    out.close();
    EXPECT_TRUE(out.good()) << path;
    return path;
}

std::string TempDirectory::read(std::string_view name) const {
    std::ifstream in(file(name), std::ios::binary);
    EXPECT_TRUE(in.good()) << file(name);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}
