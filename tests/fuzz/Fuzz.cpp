#include "tests/fuzz/Fuzz.h"

namespace {

std::map<std::string, FuzzFunction>& known() {
    static std::map<std::string, FuzzFunction> targets;
    return targets;
}

}  // namespace

const std::map<std::string, FuzzFunction>& fuzzTargets() { return known(); }

FuzzTarget::FuzzTarget(const char* name, FuzzFunction function) { known()[name] = function; }
