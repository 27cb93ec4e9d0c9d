#pragma once

#include "base/Host.h"

/// A host without a user: every box is confirmed, every picker cancelled, and time does not pass.
class DeafHost : public zg::Host {
 public:
    zg::BoxAnswer showBox(const zg::MessageBox&) override { return zg::BoxAnswer::Ok; }
    std::string pickFileToOpen(const zg::FilePick&) override { return {}; }
    std::string pickFileToSave(const zg::FilePick&) override { return {}; }
    std::vector<std::string> pickFilesToOpen(const zg::FilePick&) override { return {}; }
    std::string pickFolder(const zg::FolderPick&) override { return {}; }
    std::optional<zg::Colour> pickColour(zg::Colour) override { return {}; }
    std::optional<zg::FontRecord> pickFont(const zg::FontRecord&) override { return {}; }
    std::int64_t tickCount() override { return 0; }
    void pumpEvents(int) override {}
};
