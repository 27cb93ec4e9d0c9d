#pragma once

// What the program asks of the person and the platform. All code below the windows uses this one small
// interface, so that tests can answer the questions and see what was asked.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Style.h"

namespace zg {

enum class BoxIcon { None, Information, Warning, Question, Stop };
enum class BoxButtons { Ok, YesNo, RetryCancel };
enum class BoxAnswer { Ok, Yes, No, Retry, Cancel };

struct MessageBox {
    std::string text;
    std::string title;  ///< "" shows the program's name
    BoxIcon icon = BoxIcon::None;
    BoxButtons buttons = BoxButtons::Ok;
};

struct FilePick {
    std::string title;
    std::string filter;     ///< "Text|pattern;pattern|Text|pattern", blanks allowed around each piece
    int filterIndex = 1;    ///< counted from 1
    std::string directory;  ///< where the dialog starts; "" leaves it to the platform
    std::string fileName;   ///< name offered at first
    bool overwritePrompt = false;
};

struct FolderPick {
    std::string title;
    std::string start;  ///< selected when the picker opens
    bool offerNewFolder = false;
};

class Host {
 public:
    virtual ~Host() = default;

    virtual BoxAnswer showBox(const MessageBox& box) = 0;

    /// Full path of the picked file, "" if cancelled.
    virtual std::string pickFileToOpen(const FilePick& pick) = 0;
    virtual std::string pickFileToSave(const FilePick& pick) = 0;

    /// Full paths of the picked files, none if cancelled.
    virtual std::vector<std::string> pickFilesToOpen(const FilePick& pick) = 0;

    /// Full path of the picked folder, "" if cancelled.
    virtual std::string pickFolder(const FolderPick& pick) = 0;

    /// The picked colour or font, nothing if cancelled; the dialog starts with the given one.
    virtual std::optional<Colour> pickColour(Colour current) = 0;
    virtual std::optional<FontRecord> pickFont(const FontRecord& current) = 0;

    /// Milliseconds of a monotonic clock.
    virtual std::int64_t tickCount() = 0;

    /// Processes pending events; if there are none it may sleep for up to this many milliseconds.
    virtual void pumpEvents(int idleMs) = 0;
};

}  // namespace zg
