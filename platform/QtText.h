#pragma once

// Where the program's 8-bit texts meet the toolkit's.

#include <QColor>
#include <QFile>
#include <QString>

#include "base/Encoding.h"
#include "base/Style.h"

namespace zg {

/// Text as the user sees it: UTF-8 where the bytes are valid UTF-8, else windows-1252.
inline QString shown(std::string_view bytes) { return QString::fromStdString(toUtf8(bytes)); }

/// Text that the user typed, as it is stored: windows-1252 where it fits, else UTF-8.
inline std::string typed(const QString& text) { return fromUtf8(text.toStdString()); }

/// Names of files keep the bytes that the file system has.
inline QString fileName(const std::string& path) {
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}
inline std::string filePath(const QString& name) { return QFile::encodeName(name).toStdString(); }

/// A colour as painted; colours of the desktop come out as neutral ones that hold on every theme.
QColor toQColor(Colour colour);
Colour fromQColor(const QColor& colour);

}  // namespace zg
