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
    return answer;
}

namespace {

std::string take(std::deque<std::string>& answers, const zg::FilePick& pick) {
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected file picker: " << pick.filter;
        return {};
    }
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
}

}  // namespace

std::string TestHost::pickFileToOpen(const zg::FilePick& pick) {
    openPicks.push_back(pick);
    return take(openAnswers, pick);
}

std::string TestHost::pickFileToSave(const zg::FilePick& pick) {
    savePicks.push_back(pick);
    return take(saveAnswers, pick);
}

void TestHost::pumpEvents(int idleMs) {
    ++pumps;
    now += idleMs > 0 ? idleMs : 1;
    if (onPump) onPump();
}
