#pragma once

#include <deque>
#include <string>
#include <unordered_map>

#include "graph/script/Value.h"

namespace zg::script {

/// A name that exists as long as the engine: a variable, a constant, an object or a procedure.
struct Global {
    Value value;
    bool exists = false;    ///< a value was stored, or the name was declared
    bool declared = false;  ///< takes precedence over a function of the language with the same name
    bool constant = false;
};

/// The global names by number. A number and the address of its entry remain valid.
class Globals {
 public:
    /// The number of a lower-case name, which is added if it is new.
    std::uint32_t indexOf(const std::string& name) {
        const auto [entry, isNew] = indexes_.emplace(name, static_cast<std::uint32_t>(entries_.size()));
        if (isNew) entries_.emplace_back();
        return entry->second;
    }
    Global& operator[](std::uint32_t index) { return entries_[index]; }

 private:
    std::deque<Global> entries_;
    std::unordered_map<std::string, std::uint32_t> indexes_;
};

}  // namespace zg::script
