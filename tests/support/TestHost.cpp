#include "tests/support/TestHost.h"

#include <gtest/gtest.h>

TestHost::~TestHost() {
    EXPECT_TRUE(boxAnswers.empty()) << "a message box that was waited for did not come";
    EXPECT_TRUE(openAnswers.empty() && saveAnswers.empty())
        << "a file picker that was waited for did not come";
}

zg::BoxAnswer TestHost::showBox(const zg::MessageBox& box) {
    boxes.push_back(box);
    if (boxAnswers.empty()) {
        ADD_FAILURE() << "unexpected message box: [" << box.title << "] " << box.text;
        return zg::BoxAnswer::Cancel;
    }
    const zg::BoxAnswer answer = boxAnswers.front();
    boxAnswers.pop_front();
    if (onBox) onBox();
    return answer;
}

namespace {

template <typename Answer>
Answer take(std::deque<Answer>& answers, const std::string& asked) {
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected picker: " << asked;
        return {};
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

}  // namespace

std::string TestHost::pickFileToOpen(const zg::FilePick& pick) {
    openPicks.push_back(pick);
    return take(openAnswers, pick.filter);
}

std::string TestHost::pickFileToSave(const zg::FilePick& pick) {
    savePicks.push_back(pick);
    return take(saveAnswers, pick.filter);
}

std::vector<std::string> TestHost::pickFilesToOpen(const zg::FilePick& pick) {
    filesPicks.push_back(pick);
    return take(filesAnswers, pick.filter);
}

std::string TestHost::pickFolder(const zg::FolderPick& pick) {
    folderPicks.push_back(pick);
    return take(folderAnswers, pick.title);
}

std::optional<zg::Colour> TestHost::pickColour(zg::Colour current) {
    colourPicks.push_back(current);
    return take(colourAnswers, "a colour");
}

std::optional<zg::FontRecord> TestHost::pickFont(const zg::FontRecord& current) {
    fontPicks.push_back(current);
    return take(fontAnswers, "a font");
}

void TestHost::pumpEvents(int idleMs) {
    ++pumps;
    now += idleMs > 0 ? idleMs : 1;
    // A copy, because the function may set another one.
    if (const std::function<void()> act = onPump) act();
}
