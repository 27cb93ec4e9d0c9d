#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Host.h"

/// A stand-in for the user: answers are queued in advance, what was asked can be read afterwards. A box or
/// picker without a queued answer fails the test. The clock advances only when events are pumped, or by each
/// reading of it if a test says so.
class TestHost : public zg::Host {
 public:
    ~TestHost() override;

    zg::BoxAnswer showBox(const zg::MessageBox& box) override;
    std::string pickFileToOpen(const zg::FilePick& pick) override;
    std::string pickFileToSave(const zg::FilePick& pick) override;
    std::vector<std::string> pickFilesToOpen(const zg::FilePick& pick) override;
    std::string pickFolder(const zg::FolderPick& pick) override;
    std::optional<zg::Colour> pickColour(zg::Colour current) override;
    std::optional<zg::FontRecord> pickFont(const zg::FontRecord& current) override;
    std::int64_t tickCount() override { return now += tick; }
    void pumpEvents(int idleMs) override;

    std::deque<zg::BoxAnswer> boxAnswers;
    std::deque<std::string> openAnswers;
    std::deque<std::string> saveAnswers;
    std::deque<std::vector<std::string>> filesAnswers;
    std::deque<std::string> folderAnswers;
    std::deque<std::optional<zg::Colour>> colourAnswers;
    std::deque<std::optional<zg::FontRecord>> fontAnswers;
    std::function<void()> onPump;  ///< called at each pump, as events that arrive meanwhile

    std::function<void()> onBox;  ///< called before each box is answered, as something that happens meanwhile

    std::vector<zg::MessageBox> boxes;
    std::vector<zg::FilePick> openPicks;
    std::vector<zg::FilePick> savePicks;
    std::vector<zg::FilePick> filesPicks;
    std::vector<zg::FolderPick> folderPicks;
    std::vector<zg::Colour> colourPicks;
    std::vector<zg::FontRecord> fontPicks;
    std::int64_t now = 0;
    std::int64_t tick = 0;  ///< milliseconds that each reading of the clock takes
    int pumps = 0;
};
