// Any bytes as the file of settings and as the list of expressions: they are read or replaced by the
// defaults, and what is then written reads back the same.

#include "base/Lines.h"
#include "base/Paths.h"
#include "settings/CfgFile.h"
#include "settings/ExprFile.h"
#include "settings/Settings.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

namespace {

std::string bytesOf(const std::string& path) {
    std::string bytes;
    for (zg::LineReader lines(path); !lines.atEnd();) bytes += std::string(lines.readLine()) + "\n";
    return bytes;
}

}  // namespace

FUZZ_TARGET(settings) {
    // In memory: a settings file is on the disk before it has its name, which takes its time.
    static char directory[] = "/dev/shm/settings_fuzz_XXXXXX";
    static const bool made = mkdtemp(directory) != nullptr;
    if (!made) std::abort();
    const std::string base = std::string(directory) + "/";
    zg::settings.CfgFilePath = base + "factory.cfg";
    readAsFile(data, size, [&base](zg::Host&, const std::string& path) {
        zg::ReadCfgFile(path);
        zg::WriteCfgFile(base + "first.cfg");
        zg::ReadCfgFile(base + "first.cfg");
        zg::WriteCfgFile(base + "second.cfg");
        if (bytesOf(base + "first.cfg") != bytesOf(base + "second.cfg")) std::abort();

        auto expressions = zg::readExpressions(path);
        // The format cannot represent a quotation mark or a line end within a record.
        std::erase_if(expressions, [](const auto& one) { return one.find_first_of("\"\r\n") != one.npos; });
        if (!zg::writeExpressions(base + "expr.dat", expressions)) std::abort();
        if (zg::readExpressions(base + "expr.dat") != expressions) std::abort();
    });
    return 0;
}
