#pragma once

// A text box for a directory: what follows when it is left, and the folder picker beside it.

#include <QLineEdit>

#include "base/Host.h"

namespace zg {

/// A text gets its final separator; an empty one stays empty.
void completeDirectory(QLineEdit& box);

/// Asks for a folder, with that of the box to start from; the box shows the one picked, complete.
void browseDirectory(Host& host, QLineEdit& box, const char* prompt);

/// The same where another directory is needed: false where the box still has the old one, or none that
/// exists.
bool browseOtherDirectory(Host& host, QLineEdit& box, const char* prompt);

}  // namespace zg
