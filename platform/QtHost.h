#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include "base/Host.h"

namespace zg {

/// Boxes and pickers of the desktop, above the active window.
class QtHost : public Host {
 public:
    QtHost();

    BoxAnswer showBox(const MessageBox& box) override;
    std::string pickFileToOpen(const FilePick& pick) override;
    std::string pickFileToSave(const FilePick& pick) override;
    std::vector<std::string> pickFilesToOpen(const FilePick& pick) override;
    std::string pickFolder(const FolderPick& pick) override;
    std::optional<Colour> pickColour(Colour current) override;
    std::optional<FontRecord> pickFont(const FontRecord& current) override;
    std::int64_t tickCount() override { return clock_.elapsed(); }
    void pumpEvents(int idleMs) override;

 private:
    QElapsedTimer clock_;
};

/// The toolkit's form of a filter "Text
/// pattern;pattern
/// Text
/// pattern".
QStringList nameFilters(const std::string& filter);

}  // namespace zg
