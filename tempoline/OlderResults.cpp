#include "tempoline/OlderResults.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>

#include "base/Text.h"

namespace zg::tempoline {

namespace {

constexpr std::string_view asideEnding = ".previous";
constexpr std::size_t mostNamed = 6;

/// Status of a file of that name that can be moved; nothing for a directory.
std::optional<struct stat> stateOf(const std::string& name) {
    struct stat state = {};
    if (lstat(name.c_str(), &state) != 0 || S_ISDIR(state.st_mode)) return {};
    return state;
}

bool areOneFile(const std::string& name, const std::string& other) {
    const std::optional<struct stat> state = stateOf(name);
    const std::optional<struct stat> second = stateOf(other);
    return state && second && state->st_dev == second->st_dev && state->st_ino == second->st_ino;
}

/// False on failure, with the error in errno.
bool move(const std::string& name, const std::string& aside) {
    if (std::rename(name.c_str(), aside.c_str()) != 0) return false;
    // If both are names of one file, rename leaves both in place.
    return !areOneFile(name, aside) || unlink(name.c_str()) == 0;
}

}  // namespace

std::string asideName(const std::string& result) {
    const std::size_t dot = std::min(result.rfind('.'), result.size());
    return result.substr(0, dot) + std::string(asideEnding) + result.substr(dot);
}

bool isKeptForOlder(const std::string& output) {
    const std::string name = lcase(output);
    return name.size() >= asideEnding.size() && name.substr(name.size() - asideEnding.size()) == asideEnding;
}

std::string OlderResults::putAside(const std::vector<ResultSet>& sets) {
    std::string fault;
    for (const ResultSet& set : sets) {
        const bool isWhole = stateOf(set.back()).has_value();
        for (const std::string& name : set) {
            const std::string aside = asideName(name);
            if (stateOf(name) && (isWhole || !stateOf(aside)) && !move(name, aside) && fault.empty())
                fault = name + ": cannot be moved aside as " + aside + ": " + std::strerror(errno);
            note(aside);
        }
    }
    return fault;
}

/// Remembers the identity of the file: one that another run moves there must not be removed by this one.
void OlderResults::note(const std::string& name) {
    if (const std::optional<struct stat> state = stateOf(name)) aside_[name] = {state->st_dev, state->st_ino};
}

std::vector<std::string> OlderResults::remove() const {
    std::vector<std::string> left;
    for (const auto& [name, identity] : aside_) {
        const std::optional<struct stat> state = stateOf(name);
        if (state && Identity(state->st_dev, state->st_ino) == identity && unlink(name.c_str()) != 0)
            left.push_back(name);
    }
    return left;
}

std::vector<std::string> OlderResults::kept() const {
    std::vector<std::string> names;
    for (const auto& [name, identity] : aside_)
        if (stateOf(name)) names.push_back(name);
    return names;
}

std::string keptText(const std::vector<std::string>& names) {
    if (names.empty()) return {};
    std::string text = "the results of an earlier run are kept as ";
    for (std::size_t i = 0; i < names.size() && i < mostNamed; ++i) text += (i > 0 ? ", " : "") + names[i];
    if (names.size() > mostNamed) text += " and " + std::to_string(names.size() - mostNamed) + " more";
    return text;
}

}  // namespace zg::tempoline
