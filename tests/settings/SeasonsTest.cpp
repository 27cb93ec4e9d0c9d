#include "settings/Seasons.h"

#include "tests/settings/SettingsFixture.h"

namespace {

using namespace zg;

class SeasonsTest : public SettingsFixture {
 protected:
    static std::vector<std::string> names() {
        return {settings.SeasonNames.begin(), settings.SeasonNames.begin() + settings.SeasonCount};
    }
};

TEST_F(SeasonsTest, DefaultsAreThreeMonthsEach) {
    const SeasonFields fields = defaultSeasonFields();
    EXPECT_EQ(fields.cboSeason, (MonthTexts{"Winter", "Winter", "Spring", "Spring", "Spring", "Summer",
                                            "Summer", "Summer", "Fall", "Fall", "Fall", "Winter"}));
    EXPECT_EQ(fields.txtCustomSeason, MonthTexts());
}

TEST_F(SeasonsTest, CustomIsComparedButNotOffered) {
    for (const std::string_view choice : seasonChoices) EXPECT_NE(choice, customSeason);
    EXPECT_EQ(seasonChoices, (std::array<std::string_view, 4>{"Winter", "Spring", "Summer", "Fall"}));
}

TEST_F(SeasonsTest, DefaultsDeriveFourSeasons) {
    deriveSeasons(defaultSeasonFields());
    EXPECT_EQ(names(), (std::vector<std::string>{"Winter", "Spring", "Summer", "Fall"}));
    EXPECT_EQ(settings.MonthSeasonIndex, (std::array<std::int16_t, 12>{1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4, 1}));
    EXPECT_EQ(settings.MonthSeasonString, "1,1,2,2,2,3,3,3,4,4,4,1");
}

TEST_F(SeasonsTest, OneSeasonForAllMonths) {
    SeasonFields fields;
    fields.cboSeason.fill("Summer");
    deriveSeasons(fields);
    EXPECT_EQ(names(), std::vector<std::string>{"Summer"});
    EXPECT_EQ(settings.MonthSeasonString, "1,1,1,1,1,1,1,1,1,1,1,1");
}

TEST_F(SeasonsTest, NumbersFollowTheFirstMonthFromJanuary) {
    SeasonFields fields = defaultSeasonFields();
    fields.cboSeason[0] = "Fall";
    deriveSeasons(fields);
    EXPECT_EQ(names(), (std::vector<std::string>{"Fall", "Winter", "Spring", "Summer"}));
    EXPECT_EQ(settings.MonthSeasonString, "1,2,3,3,3,4,4,4,1,1,1,2");
}

TEST_F(SeasonsTest, TwelveOwnSeasonsAndWhatWasBeforeIsCleared) {
    SeasonFields fields;
    fields.cboSeason.fill("CUSTOM");
    for (std::size_t i = 0; i < 12; ++i) fields.txtCustomSeason[i] = "S" + std::to_string(i);
    deriveSeasons(fields);
    EXPECT_EQ(settings.SeasonCount, 12);
    EXPECT_EQ(settings.MonthSeasonString, "1,2,3,4,5,6,7,8,9,10,11,12");

    deriveSeasons(defaultSeasonFields());
    EXPECT_EQ(settings.SeasonCount, 4);
    EXPECT_EQ(settings.SeasonNames[4], "");
    EXPECT_EQ(settings.SeasonNames[11], "");
}

TEST_F(SeasonsTest, CustomNamesAreTrimmedAndComparedByCase) {
    SeasonFields fields = defaultSeasonFields();
    for (const std::size_t month : {0U, 1U, 2U}) fields.cboSeason[month] = "CUSTOM";
    fields.txtCustomSeason[0] = "  Wet ";
    fields.txtCustomSeason[1] = "Wet";
    fields.txtCustomSeason[2] = "wet";
    fields.txtCustomSeason[3] = "not asked for";
    deriveSeasons(fields);
    EXPECT_EQ(names(), (std::vector<std::string>{"Wet", "wet", "Spring", "Summer", "Fall", "Winter"}));
    EXPECT_EQ(settings.MonthSeasonString, "1,1,2,3,3,4,4,4,5,5,5,6");
}

TEST_F(SeasonsTest, CustomNameMayJoinAListedOne) {
    SeasonFields fields = defaultSeasonFields();
    fields.cboSeason[2] = "CUSTOM";
    fields.txtCustomSeason[2] = "Winter";
    deriveSeasons(fields);
    EXPECT_EQ(settings.MonthSeasonString, "1,1,1,2,2,3,3,3,4,4,4,1");
}

TEST_F(SeasonsTest, CheckFindsTheFirstMonthWithoutItsCustomName) {
    SeasonFields fields = defaultSeasonFields();
    EXPECT_EQ(firstMissingCustomSeason(fields), std::nullopt);
    fields.cboSeason[4] = "CUSTOM";
    fields.cboSeason[7] = "CUSTOM";
    EXPECT_EQ(firstMissingCustomSeason(fields), 4U);
    fields.txtCustomSeason[4] = " ";
    EXPECT_EQ(firstMissingCustomSeason(fields), 7U) << "a blank is text";
    fields.cboSeason[7] = "Custom";
    EXPECT_EQ(firstMissingCustomSeason(fields), std::nullopt) << "another case is a season like any";
    EXPECT_EQ(missingCustomSeasonText, "Please enter a CUSTOM season name.");
}

TEST_F(SeasonsTest, LoadReadsTheFile) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[1] = "Fall";
    lines[2] = "mine";
    writeCfg(bytesOf(lines));
    const SeasonFields fields = loadSeasonFields();
    EXPECT_EQ(fields.cboSeason[0], "Fall");
    EXPECT_EQ(fields.cboSeason[1], "Winter");
    EXPECT_EQ(fields.txtCustomSeason[0], "mine");
    EXPECT_EQ(settings.SeasonOfMonth[0], "Fall");
    EXPECT_EQ(settings.SeasonCount, 0) << "nothing is derived before OK";
}

TEST_F(SeasonsTest, StoredSeasonThatTheListLacksLeavesTheMonthsDefault) {
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[1] = "CUSTOM";
    lines[5] = "winter";
    lines[11] = "";
    writeCfg(bytesOf(lines));
    const SeasonFields fields = loadSeasonFields();
    EXPECT_EQ(fields.cboSeason, defaultSeasonFields().cboSeason);
    EXPECT_EQ(settings.SeasonOfMonth[0], "CUSTOM") << "the stored value stays until OK";
}

TEST_F(SeasonsTest, LoadWithoutAFileShowsTheDefaultsAndMakesIt) {
    EXPECT_EQ(loadSeasonFields().cboSeason, defaultSeasonFields().cboSeason);
    EXPECT_EQ(cfgBytes(), defaultBytes());
}

TEST_F(SeasonsTest, AcceptingStoresTheRowsUntrimmedAndWritesTheFile) {
    writeCfg(defaultBytes());
    SeasonFields fields = loadSeasonFields();
    fields.cboSeason[0] = "Fall";
    fields.txtCustomSeason[0] = " mine ";
    acceptSeasons(fields);
    std::vector<std::string> lines = linesOf(defaultBytes());
    lines[1] = "Fall";
    lines[2] = " mine ";
    EXPECT_EQ(cfgBytes(), bytesOf(lines));
    EXPECT_EQ(settings.SeasonOfMonth[0], "Fall");
    EXPECT_EQ(settings.CustomSeasonOfMonth[0], " mine ");
    EXPECT_EQ(settings.MonthSeasonString, "1,2,3,3,3,4,4,4,1,1,1,2");
}

}  // namespace
