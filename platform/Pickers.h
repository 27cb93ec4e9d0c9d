#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "base/Host.h"

namespace zg {

/// The kinds of picture that a user may choose.
inline constexpr const char* pictureFilter =
    "Bitmap Files (*.bmp) | *.bmp; |JPEG (*.JPG,*.JPEG) | *.jpg; *.jpeg; |GIF (*.GIF) | *.GIF; |"
    "All Picture Files | *.bmp; *.gif; *.jpg; *.jpeg; |All Files (*.*) | *.*";

/// Asks for one file to open, with no initial name; "" if cancelled.
std::string ShowFileOpen(Host& host, const std::string& filter, int index, const std::string& initDir);

/// Appends files to the list as SelectFiles does.
void addFiles(const std::vector<std::string>& paths, QListWidget& list, std::string& dir);

/// Asks for several files and appends each as a full path to the list, which scrolls as far as its longest
/// row needs. Sets the directory to that of the files; cancelling changes nothing.
void SelectFiles(Host& host, QListWidget& list, std::string& dir, const std::string& filter);

/// Asks for a folder with the start folder selected; returns the start folder if cancelled. A style above 0
/// offers to create new folders.
std::string BrowseForFolder(Host& host, const std::string& start, const std::string& title, int style);

}  // namespace zg
