#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "base/Paths.h"
#include "base/WideNames.h"

using zg::onWindows;

/// The path with the system's own separators: tests write "/" everywhere.
inline std::string nativePath(std::string path) {
    std::replace(path.begin(), path.end(), '/', zg::pathSeparator);
    return path;
}

/// The name as the system gives it back: Windows has no names of bytes.
inline std::string nameOnDisk(const std::string& name) {
    return onWindows ? zg::narrowName(zg::wideName(name)) : name;
}

/// The full path of a file of the sources, such as "data/samples/LOVETT_1988.frq".
inline std::string inSources(std::string_view name) {
    return nativePath(std::string(ZG_SOURCE_DIR "/").append(name));
}
