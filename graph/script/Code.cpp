#include "graph/script/Code.h"

#include <utility>

#include "graph/script/Limits.h"
#include "graph/script/ScriptError.h"

namespace zg::script {

namespace {

std::size_t elementCount(const std::vector<std::uint32_t>& upperBounds) {
    std::size_t count = 1;
    for (const std::uint32_t bound : upperBounds) count *= std::size_t{bound} + 1;
    return count;
}

}  // namespace

ArrayPayload::ArrayPayload(std::vector<std::uint32_t> upperBounds, std::shared_ptr<MemoryBudget> charged)
    : bounds(std::move(upperBounds)), budget(std::move(charged)) {
    const std::size_t count = elementCount(bounds);
    if (budget->elements + count > maxArrayElements) raise(ScriptErrorNumber::OutOfMemory);
    elements.resize(count);
    budget->elements += count;
}

ArrayPayload::~ArrayPayload() { budget->elements -= elements.size(); }

}  // namespace zg::script
