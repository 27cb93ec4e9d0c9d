#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "base/Host.h"

namespace zg {

/// The kinds of picture that a person may choose.
inline constexpr const char* pictureFilter =
    "Bitmap Files (*.bmp) | *.bmp; |JPEG (*.JPG,*.JPEG) | *.jpg; *.jpeg; |GIF (*.GIF) | *.GIF; |"
    "All Picture Files | *.bmp; *.gif; *.jpg; *.jpeg; |All Files (*.*) | *.*";

/// Asks for one file to open, with an empty name to start from; "" when cancelled.
std::string ShowFileOpen(Host& host, const std::string& filter, int index, const std::string& initDir);

/// Asks for several files and adds each as a full path to the list, which scrolls as far as its longest row
/// needs. The directory becomes that of the files; a cancel changes nothing.
void SelectFiles(Host& host, QListWidget& list, std::string& dir, const std::string& filter);

/// Asks for a folder with the start folder selected; gives the start folder when cancelled. A style above 0
/// offers to make new folders.
std::string BrowseForFolder(Host& host, const std::string& start, const std::string& title, int style);

}  // namespace zg
