#include "settings/WholeText.h"

#include <cerrno>
#include <cstdio>

#include "base/Files.h"
#include "base/Lines.h"
#include "base/RunTimeError.h"

namespace zg {

namespace {

constexpr int mostNames = 1000;

/// The target of a link, or the path itself.
std::string withoutLink(const std::string& path) {
    const std::string whole = wholePath(path);
    return whole.empty() ? path : whole;
}

/// Whether a file may be created or replaced there. A write-protected one is not replaced.
bool isReplaceable(const std::string& path) {
    const auto old = stateOfFile(path);
    if (!old) return true;
    return old->kind == FileKind::Plain && FileHandle(openStream(path, "r+b")) != nullptr;
}

bool writeInPlace(const std::string& path, const std::string& text) {
    try {
        LineWriter file(path);
        file.write(text);
        file.close();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

/// A new file of a name that no other window uses.
FileHandle createBeside(const std::string& path, std::string& name) {
    FileHandle file;
    errno = EEXIST;
    for (int i = 1; !file && i <= mostNames && errno == EEXIST; ++i) {
        name = path + ".new" + std::to_string(i);
        file.reset(openStream(name, "wbx"));
    }
    return file;
}

}  // namespace

bool replaceFile(const std::string& path, const std::string& text) {
    const std::string target = withoutLink(path);
    if (path.empty() || !isReplaceable(target)) return false;
    std::string fresh;
    FileHandle file = createBeside(target, fresh);
    if (!file) return writeInPlace(target, text);
    const bool written = std::fwrite(text.data(), 1, text.size(), file.get()) == text.size();
    const bool closed = std::fclose(file.release()) == 0;
    const bool whole = written && closed;
    if (whole) {
        copyPermissions(target, fresh);
        if (moveFile(fresh, target)) return true;
    }
    removeFile(fresh);
    return whole &&
           writeInPlace(target,
                        text);  // a mounted file, or another's in a shared directory, takes no other's place
}

}  // namespace zg
