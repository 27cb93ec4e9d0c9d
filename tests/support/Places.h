#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "base/Paths.h"

inline constexpr bool onWindows = zg::pathSeparator == '\\';

/// The path with the system's own separators: tests write "/" everywhere.
inline std::string nativePath(std::string path) {
    std::replace(path.begin(), path.end(), '/', zg::pathSeparator);
    return path;
}

/// The full path of a file of the sources, such as "data/samples/LOVETT_1988.frq".
inline std::string inSources(std::string_view name) {
    return nativePath(std::string(ZG_SOURCE_DIR "/").append(name));
}
