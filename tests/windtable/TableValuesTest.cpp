#include "windtable/TableValues.h"

#include <gtest/gtest.h>

#include <cmath>

#include "windtable/TableFields.h"

namespace zg {

namespace {

/// "missing", "none" or the number.
std::string shownNumber(std::optional<double> value) {
    if (!value) return "none";
    return std::isnan(*value) ? "missing" : std::to_string(*value);
}

std::string speedOf(std::string_view text, bool decimalComma = false, const std::string& missing = {}) {
    TableLayout layout;
    layout.decimalComma = decimalComma;
    layout.missing = missing;
    return shownNumber(tableNumber(text, layout));
}

std::string cut(std::string_view line, char delimiter, std::size_t most = 100) {
    TableFields fields;
    if (!fields.cut(line, delimiter, most)) return "open quote";
    std::string text;
    for (std::size_t column = 1; column <= fields.size(); ++column)
        text.append("[").append(fields.at(column)).append("]");
    return text;
}

}  // namespace

TEST(TableValues, KnowWhatStandsForNothing) {
    for (const char* const text : {"", "M", "m", "NA", "N/A", "NaN", "null", "-", "999", "999.0", "9999",
                                   "-999", "-9999", "-9999.00", "+999", "inf"})
        EXPECT_EQ(speedOf(text), "missing") << text;
    EXPECT_EQ(speedOf("0"), "0.000000");
    EXPECT_EQ(speedOf("-1"), "-1.000000");
    EXPECT_EQ(speedOf("99"), "99.000000");
    EXPECT_EQ(speedOf("99", false, "99"), "missing");
    EXPECT_EQ(speedOf("1,5", true), "1.500000");
    for (const char* const text : {"1,5", "5 kt", "abc", "1.2.3", "0x10", "MM M"})
        EXPECT_EQ(speedOf(text), "none") << text;
}

TEST(TableValues, AVariableDirectionHasNoDegrees) {
    const TableLayout layout;
    EXPECT_EQ(shownNumber(tableDirection("VRB", layout)), "missing");
    EXPECT_EQ(shownNumber(tableDirection("Calm", layout)), "missing");
    EXPECT_EQ(shownNumber(tableDirection("350", layout)), "350.000000");
    EXPECT_EQ(shownNumber(tableDirection("NNW", layout)), "none");
    EXPECT_EQ(speedOf("VRB"), "none");
}

TEST(TableValues, ALineIsCutAtItsDelimiter) {
    EXPECT_EQ(cut("a, b ,,c,", ','), "[a][b][][c][]");
    EXPECT_EQ(cut("a,b,c", ',', 2), "[a][b]");
    EXPECT_EQ(cut("  a \t b  ", ' '), "[a][b]");
    EXPECT_EQ(cut("a\t\tb", '\t'), "[a][][b]");
    EXPECT_EQ(cut("\"a,b\",\"say \"\"x\"\"\", \"c\" ", ','), "[a,b][say \"x\"][c]");
    EXPECT_EQ(cut("\"a b\" c", ' '), "[a b][c]");
    EXPECT_EQ(cut("\"a,b", ','), "open quote");
    EXPECT_EQ(cut("\"\"\t\t\"b\"", '\t'), "[][][b]");
}

}  // namespace zg
