#include "platform/DirectoryBox.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "platform/Pickers.h"
#include "platform/ReadText.h"
#include "processing/Directories.h"

namespace zg {

void completeDirectory(QLineEdit& box) {
    if (const std::string path = pathIn(box); !path.empty()) showPath(box, withSeparator(path));
}

void browseDirectory(Host& host, QLineEdit& box, const char* prompt) {
    showPath(box, BrowseForFolder(host, trim(pathIn(box)), prompt, -1));
    completeDirectory(box);
}

bool browseOtherDirectory(Host& host, QLineEdit& box, const char* prompt) {
    const std::string before = trim(pathIn(box));
    browseDirectory(host, box, prompt);
    const std::string now = trim(pathIn(box));
    return now != before && IsDirectory(now);
}

}  // namespace zg
