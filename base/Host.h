#pragma once

// What the program asks of the person and the platform. Everything below the windows goes through this one
// small interface, so that tests answer the questions and read what was asked.

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
    std::string filter;     ///< "Text|pattern;pattern|Text|pattern", blanks allowed round each piece
    int filterIndex = 1;    ///< from 1
    std::string directory;  ///< where the dialog starts; "" leaves it to the platform
    std::string fileName;   ///< offered name
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

    /// Full path of the picked file, "" when cancelled.
    virtual std::string pickFileToOpen(const FilePick& pick) = 0;
    virtual std::string pickFileToSave(const FilePick& pick) = 0;

    /// Full paths of the picked files, none when cancelled.
    virtual std::vector<std::string> pickFilesToOpen(const FilePick& pick) = 0;

    /// Full path of the picked folder, "" when cancelled.
    virtual std::string pickFolder(const FolderPick& pick) = 0;

    /// The picked colour or font, nothing when cancelled; the dialog starts with the given one.
    virtual std::optional<Colour> pickColour(Colour current) = 0;
    virtual std::optional<FontRecord> pickFont(const FontRecord& current) = 0;

    /// Milliseconds of a clock that only moves forward.
    virtual std::int64_t tickCount() = 0;

    /// Serves the waiting events; where none waits it may sleep up to so many milliseconds.
    virtual void pumpEvents(int idleMs) = 0;
};

}  // namespace zg
