#include "graph/frq/FreqFields.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Text.h"

namespace zg {
namespace {

TEST(FreqFields, GiveThePiecesThatSplitGives) {
    for (const std::string text : {"", ":", "a", "a:", ":a", "a:b:c", "::", " a : b "}) {
        const Pieces pieces = split(text, ":");
        FreqFields fields(text, ':');
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            EXPECT_EQ(fields.next(), pieces[i]) << text;
            EXPECT_EQ(freqField(text, ':', i), pieces[i]) << text;
        }
        EXPECT_THROW(fields.next(), RunTimeError) << text;
        EXPECT_THROW(freqField(text, ':', pieces.size()), RunTimeError) << text;
    }
}

TEST(FreqFields, RaiseSubscriptOutOfRangePastTheEnd) {
    try {
        freqField("a", ':', 1);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number, 9);
    }
}

}  // namespace
}  // namespace zg
