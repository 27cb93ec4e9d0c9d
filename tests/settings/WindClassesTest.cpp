#include "settings/WindClasses.h"

#include "tests/settings/SettingsFixture.h"

namespace {

using namespace zg;

class WindClassesTest : public SettingsFixture {};

const std::string emptyText = "Please enter a minimum value for the wind speed range.";

std::string orderText(const char* lower, const char* upper) {
    return std::string("The Wind Speed Class ") + lower +
           " minimum range value must be less than that of Wind Speed Class " + upper + ".";
}

TEST_F(WindClassesTest, FactoryMinima) {
    EXPECT_EQ(settings.DefaultWindClassMin, (ClassTexts{"0.5", "1.8", "3.3", "5.4", "8.5", "10.8"}));
    EXPECT_EQ(findEmptyClass(settings.DefaultWindClassMin), std::nullopt);
    EXPECT_EQ(findDisorderedClass(settings.DefaultWindClassMin), std::nullopt);
}

TEST_F(WindClassesTest, LoadReadsTheFile) {
    writeCfg(defaultWith(27, " 2.5 "));
    settings.WindClassMin.fill("9");
    EXPECT_EQ(loadWindClasses(), (ClassTexts{"0.5", "2.5", "3.3", "5.4", "8.5", "10.8"}));
}

TEST_F(WindClassesTest, EmptyTextIsFoundBeforeAnyOrderIsLookedAt) {
    const ClassTexts texts = {"2", "1", "3", "4", "5", ""};
    EXPECT_EQ(findEmptyClass(texts), (ClassFault{5, emptyText}));
    EXPECT_EQ(findEmptyClass({"", "1", "", "4", "5", "6"}), (ClassFault{0, emptyText}));
    EXPECT_EQ(findEmptyClass({"1", "1", " ", "4", "5", "6"}), std::nullopt) << "a blank is text";
}

TEST_F(WindClassesTest, EqualMinimaPass) {
    EXPECT_EQ(findDisorderedClass({"1", "1", "2", "3", "4", "5"}), std::nullopt);
    EXPECT_EQ(findDisorderedClass({"1", "1", "1", "1", "1", "1"}), std::nullopt);
}

TEST_F(WindClassesTest, EqualAsSinglesPass) {
    EXPECT_EQ(findDisorderedClass({"1", "2.00000001", "2", "3", "4", "5"}), std::nullopt);
}

TEST_F(WindClassesTest, FirstRowAboveItsNextIsNamedWithBothNumbers) {
    EXPECT_EQ(findDisorderedClass({"2", "1", "3", "4", "5", "6"}), (ClassFault{0, orderText("1", "2")}));
    EXPECT_EQ(findDisorderedClass({"1", "3", "2", "1", "5", "6"}), (ClassFault{1, orderText("2", "3")}));
    EXPECT_EQ(findDisorderedClass({"1", "2", "3", "4", "6", "5"}), (ClassFault{4, orderText("5", "6")}));
}

TEST_F(WindClassesTest, NegativeMinimaPassInOrder) {
    EXPECT_EQ(findDisorderedClass({"-2", "-1", "3", "4", "5", "6"}), std::nullopt);
    EXPECT_EQ(findDisorderedClass({"-1", "-2", "3", "4", "5", "6"}), (ClassFault{0, orderText("1", "2")}));
}

TEST_F(WindClassesTest, TextThatIsNoNumberIsNamedByTheConversion) {
    EXPECT_EQ(findDisorderedClass({"-", "1", "2", "3", "4", "5"}), (ClassFault{0, "Type mismatch"}));
    EXPECT_EQ(findDisorderedClass({"1", "1.2.3", "2", "3", "4", "5"}), (ClassFault{1, "Type mismatch"}));
    EXPECT_EQ(findDisorderedClass({"1", "2", "3", "4", "5", "  "}), (ClassFault{5, "Type mismatch"}));
    EXPECT_EQ(findDisorderedClass({"1", "2", "3", "4", "5", "1" + std::string(40, '0')}),
              (ClassFault{5, "Overflow"}));
    EXPECT_EQ(findDisorderedClass({"2", "1", "-", "4", "5", "6"}), (ClassFault{0, orderText("1", "2")}))
        << "the rows are looked at in their order";
}

TEST_F(WindClassesTest, AcceptingStoresTrimmedTextsWritesAndJoins) {
    writeCfg(defaultBytes());
    loadWindClasses();
    acceptWindClasses({" 1 ", "1.50", "2", "3", "4", "5 "});
    EXPECT_EQ(settings.WindClassMin, (ClassTexts{"1", "1.50", "2", "3", "4", "5"}));
    EXPECT_EQ(settings.WindClassString, "1,1.50,2,3,4,5");
    std::vector<std::string> lines = linesOf(defaultBytes());
    const ClassTexts stored = {"1", "1.50", "2", "3", "4", "5"};
    std::copy(stored.begin(), stored.end(), lines.begin() + 25);
    EXPECT_EQ(cfgBytes(), bytesOf(lines));
}

TEST_F(WindClassesTest, StringIsJoinedWithoutBlanks) {
    settings.WindClassMin = settings.DefaultWindClassMin;
    buildWindClassString();
    EXPECT_EQ(settings.WindClassString, "0.5,1.8,3.3,5.4,8.5,10.8");
    settings.WindClassMin = {};
    buildWindClassString();
    EXPECT_EQ(settings.WindClassString, ",,,,,");
}

TEST_F(WindClassesTest, LabelEchoesTheTrimmedText) {
    EXPECT_EQ(windClassLabel(" 1.8 "), "1.8 m/s");
    EXPECT_EQ(windClassLabel(""), " m/s");
}

TEST_F(WindClassesTest, KeysOfTheBoxes) {
    std::string passed;
    for (std::int16_t key = 32; key < 256; ++key)
        if (KeyWindClass(key) == key) passed.push_back(static_cast<char>(key));
    EXPECT_EQ(passed, "-.0123456789\x7F");
    for (std::int16_t key = 1; key < 32; ++key) EXPECT_EQ(KeyWindClass(key), key == 13 ? 0 : key) << key;
    EXPECT_EQ(KeyWindClass('a'), 0);
    EXPECT_EQ(KeyWindClass(233), 0);
    EXPECT_EQ(KeyWindClass(-1), 0);
}

}  // namespace
