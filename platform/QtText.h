#pragma once

// Conversion between the program's 8-bit texts and the toolkit's.

#include <QColor>
#include <QDir>
#include <QFile>
#include <QString>

#include "base/Encoding.h"
#include "base/Paths.h"
#include "base/Style.h"
#include "base/WideNames.h"

namespace zg {

/// Text as the user sees it: UTF-8 if the bytes are valid UTF-8, otherwise windows-1252.
inline QString shown(std::string_view bytes) { return QString::fromStdString(toUtf8(bytes)); }

/// Text that the user typed, as it is stored: windows-1252 if it fits, otherwise UTF-8.
inline std::string typed(const QString& text) { return fromUtf8(text.toStdString()); }

/// File names keep the bytes of the file system.
inline QString fileName(const std::string& path) {
    if constexpr (onWindows) return QString::fromStdU16String(wideName(path));
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}
inline std::string filePath(const QString& name) {
    if constexpr (onWindows) return narrowName(QDir::toNativeSeparators(name).toStdU16String());
    return QFile::encodeName(name).toStdString();
}

/// A colour to paint; colours of the desktop are replaced by neutral ones that suit every theme.
QColor toQColor(Colour colour);
Colour fromQColor(const QColor& colour);

}  // namespace zg
