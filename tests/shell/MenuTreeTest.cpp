#include "shell/MenuTree.h"

#include <gtest/gtest.h>

#include <QMenu>

namespace zg {
namespace {

class MenuTreeTest : public ::testing::Test {
 protected:
    MenuTreeTest() : actions_(buildMenus(bar_)) {}

    QMenuBar bar_;
    std::map<std::string, QAction*> actions_;
};

TEST_F(MenuTreeTest, TheBarShowsItsMenusInOrder) {
    QStringList captions;
    for (const QAction* action : bar_.actions()) captions.append(action->text());
    EXPECT_EQ(captions, (QStringList{"&File", "&Edit", "&View", "&Options", "&Help"}));
}

TEST_F(MenuTreeTest, ThePopUpOfTheListStandsOnNoBar) {
    const QMenu* graph = actions_.at("mnuGraph")->menu();
    ASSERT_NE(graph, nullptr);
    EXPECT_EQ(graph->actions().size(), 12);
    EXPECT_EQ(actions_.at("mnuGraphOption_7")->text(), "Sto&p");
}

TEST_F(MenuTreeTest, HiddenEntriesAreOutOfReach) {
    for (const char* name : {"mnuFileOption_0", "mnuViewRefresh", "mnuPolarOption_4", "mnuPolarOption_6"}) {
        EXPECT_FALSE(actions_.at(name)->isVisible()) << name;
        EXPECT_FALSE(actions_.at(name)->isEnabled()) << name;
    }
    EXPECT_TRUE(actions_.at("mnuPolarOption_4")->isChecked());
}

TEST_F(MenuTreeTest, RadioEntriesShutEachOtherOut) {
    actions_.at("mnuPolarGridOption_2")->trigger();
    EXPECT_FALSE(actions_.at("mnuPolarGridOption_1")->isChecked());
    EXPECT_TRUE(actions_.at("mnuPolarGridOption_2")->isChecked());
    EXPECT_TRUE(actions_.at("mnuViewAspectOption_0")->isChecked()) << "another group stays";
}

TEST_F(MenuTreeTest, ShortcutsAreThoseOfTheCommands) {
    EXPECT_EQ(actions_.at("mnuFileOption_12")->shortcut(), QKeySequence("Ctrl+S"));
    EXPECT_EQ(actions_.at("mnuFileOption_13")->shortcut(), QKeySequence("Ctrl+B"));
    EXPECT_EQ(actions_.at("mnuFileOption_15")->shortcut(), QKeySequence("Ctrl+R"));
    EXPECT_EQ(actions_.at("mnuFileOption_16")->shortcut(), QKeySequence("Ctrl+P"));
    EXPECT_EQ(actions_.at("mnuEditOption_0")->shortcut(), QKeySequence("Ctrl+C"));
    EXPECT_EQ(actions_.at("mnuEditOption_1")->shortcut(), QKeySequence("Ctrl+A"));
}

/// The entries of a menu from top to bottom, "-" for a separator.
QStringList shownIn(const QAction& menu) {
    QStringList rows;
    for (const QAction* entry : menu.menu()->actions())
        if (entry->isVisible()) rows.append(entry->isSeparator() ? QStringLiteral("-") : entry->text());
    return rows;
}

TEST_F(MenuTreeTest, EveryMenuShowsItsEntriesInOrder) {
    EXPECT_EQ(shownIn(*actions_.at("mnuFile")),
              (QStringList{
                  "Plot Wind Rose from FRQ File", "-", "Process 3D.DAT Data", "Process AERMET Surface Data",
                  "Process AERMET Profile Data", "Process AMMNET Met. Data", "Process VENTOS Data",
                  "Process SURF.DAT Data", "Process UP.DAT Data", "Process TSF Data", "-", "&Save (As BMP)",
                  "&Batch Save (As BMP)", "-", "&Create Report (From BMP)", "&Print", "-", "E&xit"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuEdit")), (QStringList{"Copy", "Select &All", "-", "Copy To..."}));
    EXPECT_EQ(shownIn(*actions_.at("mnuView")),
              (QStringList{"Wind Rose  (Seasonal, etc...)", "FRQ File", "-", "Toolbar", "Toolbox", "-",
                           "Ruler", "-", "Aspect &Ratio", "Zoom", "-", "Reset Drawing Area"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuViewRuler")), (QStringList{"Show", "Mode"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuViewRulerMode")), (QStringList{"Axis", "Unit"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuViewAspect")),
              (QStringList{"1.5", "2.5", "3.5", "4.5", "-", "&Custom..."}));
    EXPECT_EQ(shownIn(*actions_.at("mnuViewZoom")), (QStringList{"Normal Size", "Large Size", "Custom..."}));
    EXPECT_EQ(shownIn(*actions_.at("mnuPolar")),
              (QStringList{"Set Seasons", "Set Wind Speed Classes", "-", "Change Radius", "-", "Edit Label",
                           "Edit Wind Speed Classes Legend", "Edit Grid Fonts and Colors", "-",
                           "Show Grid Lines", "Show Grid Labels", "Show Legend"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuPolarOption_0")), (QStringList{"None", "Minor", "Major"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuGraph")),
              (QStringList{"&Hide", "&Show", "&Delete", "-", "Select &All", "-", "&Play", "Sto&p", "-",
                           "&Table...", "-", "&Properties"}));
    EXPECT_EQ(shownIn(*actions_.at("mnuHelp")), (QStringList{"&About Zephyrgraph..."}));
}

TEST_F(MenuTreeTest, CaptionsKeepTheirDoubleBlanks) {
    EXPECT_EQ(actions_.at("mnuAvePeriod")->text(), "Wind Rose  (Seasonal, etc...)");
}

}  // namespace
}  // namespace zg
