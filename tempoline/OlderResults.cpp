#include "tempoline/OlderResults.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>

#include "base/Text.h"

namespace zg::tempoline {

namespace {

constexpr std::string_view asideEnding = ".previous";
constexpr std::size_t mostNamed = 6;

/// Identity of a file of that name that can be moved; nothing for a directory.
std::optional<FileIdentity> movable(const std::string& name) {
    const std::optional<FileState> state = stateOfName(name);
    if (!state || state->kind == FileKind::Directory) return {};
    return state->identity;
}

/// False on failure, with the error in errno.
bool move(const std::string& name, const std::string& aside) {
    if (!moveFile(name, aside)) return false;
    // If both are names of one file, renaming it leaves both in place.
    const std::optional<FileIdentity> left = movable(name);
    return !left || left != movable(aside) || removeFile(name);
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
        const bool isWhole = movable(set.back()).has_value();
        for (const std::string& name : set) {
            const std::string aside = asideName(name);
            if (movable(name) && (isWhole || !movable(aside)) && !move(name, aside) && fault.empty())
                fault = name + ": cannot be moved aside as " + aside + ": " + std::strerror(errno);
            note(aside);
        }
    }
    return fault;
}

/// Remembers the identity of the file: one that another run moves there must not be removed by this one.
void OlderResults::note(const std::string& name) {
    if (const std::optional<FileIdentity> identity = movable(name)) aside_[name] = *identity;
}

std::vector<std::string> OlderResults::remove() const {
    std::vector<std::string> left;
    for (const auto& [name, identity] : aside_) {
        if (movable(name) == identity && !removeFile(name)) left.push_back(name);
    }
    return left;
}

std::vector<std::string> OlderResults::kept() const {
    std::vector<std::string> names;
    for (const auto& [name, identity] : aside_)
        if (movable(name)) names.push_back(name);
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
