#include "processing/ListMoves.h"

#include <gtest/gtest.h>

#include <cctype>

namespace {

using namespace zg;

/// One letter per row, the selected ones in upper case.
std::vector<ListRow> rows(const std::string& letters) {
    std::vector<ListRow> out;
    for (const char c : letters) {
        const auto letter = static_cast<unsigned char>(c);
        out.push_back({std::string(1, static_cast<char>(std::tolower(letter))), std::isupper(letter) != 0});
    }
    return out;
}

struct Move {
    const char* name;
    void (*move)(std::vector<ListRow>&);
    const char* before;
    const char* after;
};

class ListMoveTest : public testing::TestWithParam<Move> {};

TEST_P(ListMoveTest, MovesTheSelection) {
    std::vector<ListRow> list = rows(GetParam().before);
    GetParam().move(list);
    EXPECT_EQ(list, rows(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(
    Moves, ListMoveTest,
    testing::Values(
        Move{"UpOne", ListMoveUp, "abCd", "aCbd"}, Move{"UpBlock", ListMoveUp, "abCDe", "aCDbe"},
        Move{"UpApart", ListMoveUp, "aBcDe", "BaDce"}, Move{"UpStopsAtTheTop", ListMoveUp, "AbCd", "AbCd"},
        Move{"UpBlockStopsAtTheTop", ListMoveUp, "ABcd", "ABcd"},
        Move{"UpNothingSelected", ListMoveUp, "abc", "abc"}, Move{"UpEmpty", ListMoveUp, "", ""},
        Move{"DownOne", ListMoveDown, "aBcd", "acBd"}, Move{"DownBlock", ListMoveDown, "aBCde", "adBCe"},
        Move{"DownApart", ListMoveDown, "aBcDe", "acBeD"},
        Move{"DownStopsAtTheBottom", ListMoveDown, "aBcD", "aBcD"},
        Move{"DownBlockStopsAtTheBottom", ListMoveDown, "abCD", "abCD"},
        Move{"DownEmpty", ListMoveDown, "", ""}, Move{"DownSingle", ListMoveDown, "A", "A"},
        Move{"Remove", ListRemoveSelected, "aBcDE", "ac"}, Move{"RemoveAll", ListRemoveSelected, "ABC", ""},
        Move{"RemoveNone", ListRemoveSelected, "abc", "abc"}),
    [](const auto& each) { return each.param.name; });

}  // namespace
