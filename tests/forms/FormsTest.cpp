// Shows every form of the program and checks it control by control.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <algorithm>
#include <cstring>
#include <functional>
#include <set>
#include <vector>

#include "tests/forms/Checks.h"
#include "tests/forms/Exceptions.h"
#include "tests/forms/Forms.h"
#include "tests/forms/Looks.h"

namespace zg {
namespace {

/// One "*" in the pattern matches any text.
bool fits(const std::string& control, const std::string& pattern) {
    const std::size_t star = pattern.find('*');
    if (star == std::string::npos) return control == pattern;
    const std::string before = pattern.substr(0, star);
    const std::string after = pattern.substr(star + 1);
    return control.size() >= before.size() + after.size() && control.rfind(before, 0) == 0 &&
           control.compare(control.size() - after.size(), after.size(), after) == 0;
}

bool isExcused(const Exception& exception, Check check, const FormRow& row, const Finding& found) {
    return exception.check == check && std::strcmp(exception.form, row.form) == 0 &&
           fits(found.control, exception.control);
}

std::set<const Exception*>& usedExceptions() {
    static std::set<const Exception*> used;
    return used;
}

/// The remaining findings, one per line.
std::string unexcused(Check check, const FormRow& row, const std::string& page, const Findings& findings) {
    std::string lines;
    for (const Finding& found : findings) {
        bool excused = false;
        for (const Exception& exception : exceptions()) {
            if (!isExcused(exception, check, row, found)) continue;
            usedExceptions().insert(&exception);
            excused = true;
        }
        if (!excused)
            lines += rowName(row) + (page.empty() ? "" : "/" + page) + ": " + found.control + " " +
                     found.fault + "\n";
    }
    return lines;
}

struct Walk {
    Check check;
    std::function<Findings(QWidget&)> findings;
};

/// Those that only look come first: the form is opened once for all of them.
const std::vector<Walk>& keyWalks() {
    static const std::vector<Walk> walks = {
        {Check::Names, checkNames},       {Check::Accelerators, checkAccelerators},
        {Check::ToolTips, checkToolTips}, {Check::TabOrder, checkTabOrder},
        {Check::Enter, checkEnter},       {Check::Accelerators, checkLabelKeys}};
    return walks;
}

const std::vector<Walk>& placeWalks() {
    static const std::vector<Walk> walks = {{Check::Room, checkRoom}, {Check::Colours, checkColours}};
    return walks;
}

std::string look(const FormRow& row, const std::vector<Walk>& walks) {
    FormWorld world;
    const auto form = open(row, world);
    std::string lines;
    for (const Walk& walk : walks)
        forEachPage(*form, [&](const std::string& page) {
            lines += unexcused(walk.check, row, page, walk.findings(*form));
        });
    return lines;
}

class EveryForm : public ::testing::TestWithParam<FormRow> {
 protected:
    void SetUp() override {
        const QString asked = qEnvironmentVariable("QT_SCALE_FACTOR");
        if (asked.isEmpty()) return;
        ASSERT_EQ(qApp->devicePixelRatio(), asked.toDouble()) << "not as dense as asked for";
    }
    void TearDown() override { resetLooks(); }
};

TEST_P(EveryForm, IsReachedByKeys) { EXPECT_EQ(look(GetParam(), keyWalks()), ""); }

TEST_P(EveryForm, HasRoomAndColours) { EXPECT_EQ(look(GetParam(), placeWalks()), ""); }

TEST_P(EveryForm, CutsNothingOffWithLargeFonts) {
    enlargeFonts(1.5);
    EXPECT_EQ(look(GetParam(), {{Check::Room, checkRoom}}), "");
}

TEST_P(EveryForm, IsLegibleInADarkTheme) {
    takeDarkTheme();
    EXPECT_EQ(look(GetParam(), {{Check::Colours, checkColours}}), "");
}

TEST_P(EveryForm, ClosesByEscape) {
    FormWorld world;
    const auto form = open(GetParam(), world);
    auto* dialog = qobject_cast<QDialog*>(form.get());
    if (dialog == nullptr) return;
    ASSERT_NE(dialog->focusWidget(), nullptr) << "nothing has the keyboard";
    const int presses = std::strcmp(GetParam().state, "Add") == 0 ? 2 : 1;  // the first one closes the tray
    for (int i = 0; i < presses; ++i) {
        EXPECT_TRUE(dialog->isVisible());
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
    }
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

INSTANTIATE_TEST_SUITE_P(, EveryForm, ::testing::ValuesIn(forms()),
                         [](const auto& row) { return rowName(row.param); });

bool hasExceptions(const FormRow& row) {
    return std::ranges::any_of(
        exceptions(), [&](const Exception& exception) { return std::strcmp(exception.form, row.form) == 0; });
}

TEST(Forms, NeedEachOfTheExceptions) {
    usedExceptions().clear();
    for (const FormRow& row : forms()) {
        if (!hasExceptions(row)) continue;
        look(row, keyWalks());
        look(row, placeWalks());
    }
    for (const Exception& exception : exceptions())
        EXPECT_TRUE(usedExceptions().contains(&exception))
            << exception.form << ' ' << exception.control << ": " << exception.reason;
}

}  // namespace
}  // namespace zg
