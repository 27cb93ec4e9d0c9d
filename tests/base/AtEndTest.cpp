#include "base/AtEnd.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace zg {
namespace {

TEST(AtEnd, ActsWhenItsScopeEndsAndNotBefore) {
    int acted = 0;
    {
        const AtEnd once([&acted] { ++acted; });
        EXPECT_EQ(acted, 0);
    }
    EXPECT_EQ(acted, 1);
}

TEST(AtEnd, ActsWhereAnErrorEndsTheScope) {
    bool busy = false;
    const auto work = [&busy] {
        const AtEnd putBack([&busy] { busy = false; });
        busy = true;
        throw std::runtime_error("in the middle");
    };
    EXPECT_THROW(work(), std::runtime_error);
    EXPECT_FALSE(busy);
}

}  // namespace
}  // namespace zg
