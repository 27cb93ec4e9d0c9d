#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "graph/script/Program.h"

namespace zg {

/// The names of an engine. A name keeps its number for the engine's life.
class SymbolTable {
 public:
    std::int32_t intern(const std::string& name) {
        const auto [entry, fresh] = index_.try_emplace(name, static_cast<std::int32_t>(symbols_.size()));
        if (fresh) symbols_.push_back({name, {}, false, false, nullptr});
        return entry->second;
    }

    const Symbol* find(const std::string& name) const {
        const auto entry = index_.find(name);
        return entry == index_.end() ? nullptr : &symbols_[static_cast<std::size_t>(entry->second)];
    }

    Symbol& operator[](std::int32_t i) { return symbols_[static_cast<std::size_t>(i)]; }
    const Symbol& operator[](std::int32_t i) const { return symbols_[static_cast<std::size_t>(i)]; }

 private:
    std::vector<Symbol> symbols_;
    std::unordered_map<std::string, std::int32_t> index_;
};

/// What of a script is known besides its names.
struct ScriptSettings {
    bool optionExplicit = false;
    std::string mathObject;  ///< name of the math library's object in lower case, "" while there is none
};

}  // namespace zg
