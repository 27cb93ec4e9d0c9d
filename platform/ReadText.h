#pragma once

// Controls that show a text of a file. What they give back are the bytes that the file has, as long as the
// user left the text as it was: the same letters have other bytes in another encoding, and the processor
// compares bytes.

#include <string>
#include <string_view>

class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace zg {

void showRead(QLineEdit& box, std::string_view bytes);
void addRead(QComboBox& combo, std::string_view bytes);
void addRead(QListWidget& list, std::string_view bytes);

/// The bytes that were shown, or those of a text that the user typed instead.
std::string readOrTyped(const QLineEdit& box);
std::string readOrTyped(const QComboBox& combo);
std::string readIn(const QListWidgetItem& row);

/// The same for the path of a file or directory; one that is typed has the encoding of the file system.
void showPath(QLineEdit& box, const std::string& path);
std::string pathIn(const QLineEdit& box);

}  // namespace zg
