#pragma once

// Controls that show a text of a file. They return the bytes of the file as long as the user has not changed
// the text: the same letters have other bytes in another encoding, and the processor compares bytes.

#include <string>
#include <string_view>

class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace zg {

void showRead(QLineEdit& box, std::string_view bytes);
/// A row of a list also has its text as tool tip: a name may be longer than the list is wide.
void addRead(QComboBox& combo, std::string_view bytes);
void addRead(QListWidget& list, std::string_view bytes);

/// The bytes of the original text, or those of a text that the user has typed instead.
std::string readOrTyped(const QLineEdit& box);
std::string readOrTyped(const QComboBox& combo);
std::string readIn(const QListWidgetItem& row);

/// The same for the path of a file or directory; a typed one has the encoding of the file system.
void showPath(QLineEdit& box, const std::string& path);
std::string pathIn(const QLineEdit& box);

}  // namespace zg
