#include "graph/script/HostFunctions.h"

#include <bit>
#include <unordered_map>

namespace zg::script {

namespace {

using Table = std::unordered_map<std::string_view, const HostFunction*>;

void addAll(Table& table, std::span<const HostFunction> some) {
    for (const HostFunction& function : some) table.emplace(function.name, &function);
}

const HostFunction* find(const Table& table, std::string_view name) {
    const auto found = table.find(name);
    return found == table.end() ? nullptr : found->second;
}

constexpr std::uint32_t placeMask = 0xFFFFFF;

}  // namespace

float RandomNumbers::next() {
    place_ = (place_ * 0x43FD43FD + 0xC39EC3) & placeMask;
    return last();
}

float RandomNumbers::last() const { return static_cast<float>(place_) / 16777216.0F; }

void RandomNumbers::restart(float place) {
    const auto bits = std::bit_cast<std::uint32_t>(place);
    place_ = (bits + (bits >> 24)) & placeMask;
}

void RandomNumbers::seed(double number) {
    const auto high = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number) >> 32);
    place_ = (place_ & 0xFF) | (((high ^ (high >> 16)) & 0xFFFF) << 8);
}

const HostFunction* findFunction(std::string_view name) {
    static const Table table = [] {
        Table all;
        addAll(all, numericFunctions());
        addAll(all, conversionFunctions());
        addAll(all, textFunctions());
        return all;
    }();
    return find(table, name);
}

const HostFunction* findMathMember(std::string_view name) {
    static const Table table = [] {
        Table all;
        addAll(all, mathMembers());
        return all;
    }();
    return find(table, name);
}

}  // namespace zg::script
