#pragma once

#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "base/Lines.h"

namespace zg::tempoline {

/// The control file that the desktop program writes, with other values.
inline std::string control(const std::string& file,
                           const std::vector<std::pair<std::string, std::string>>& changes) {
    std::string text = readWholeFile(std::string(ZG_SOURCE_DIR) + "/tests/processing/control/" + file);
    for (const auto& [key, value] : changes)
        text = std::regex_replace(text, std::regex("! " + key + "( *)=[^!\\r\\n]*!"),
                                  "! " + key + " = " + value + " !");
    return text;
}

inline const std::vector<std::pair<std::string, std::string>> firstDay = {
    {"IBYR", "2004"}, {"IBMO", "1"}, {"IBDY", "1"}, {"IBHR", "0"}, {"IBSEC", "0"},
    {"IEYR", "2004"}, {"IEMO", "1"}, {"IEDY", "2"}, {"IEHR", "0"}, {"IESEC", "0"}};

}  // namespace zg::tempoline
