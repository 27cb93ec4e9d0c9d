#include "tests/support/StandIn.h"

#include <gtest/gtest.h>

#include "base/Files.h"
#include "base/Lines.h"
#include "tests/support/System.h"

namespace {

void writeWhole(const std::string& path, std::string_view bytes) {
    const zg::FileHandle out(zg::openStream(path, "wb"));
    EXPECT_TRUE(out && std::fwrite(bytes.data(), 1, bytes.size(), out.get()) == bytes.size()) << path;
}

}  // namespace

void makeStandIn(const std::string& path, std::string_view lines) {
    writeWhole(path, zg::readWholeFile(ZG_STAND_IN));
    makeExecutable(path);
    writeWhole(path + ".does", lines);
}
