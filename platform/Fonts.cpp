#include "platform/Fonts.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontDatabase>

#include "base/Paths.h"
#include "platform/QtText.h"

namespace zg {

namespace {

const char* const wantedFace = "Arial";
const char* const equalFace = "Liberation Sans";

/// Without a window the toolkit opens fonts by names in the 8-bit encoding of the system, which has not every
/// letter; then it gets the bytes.
void addFont(const QString& path) {
    if (QFontDatabase::addApplicationFont(path) != -1) return;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) QFontDatabase::addApplicationFontFromData(file.readAll());
}

bool isThere(const char* face) {
    return QFontDatabase::families().contains(QString::fromLatin1(face), Qt::CaseInsensitive);
}

}  // namespace

void useFontsBeside(const std::string& programDirectory) {
    if (isThere(wantedFace)) return;
    const std::string directory = programDirectory + pathSeparator + "fonts" + pathSeparator;
    const std::vector<std::string> names = filesMatching(directory + "*.ttf");
    if (names.empty()) return;  // the system has its own rules for what takes the place
    for (const std::string& name : names) addFont(fileName(directory + name));
    if (!isThere(equalFace)) return;
    QFont::insertSubstitution(QString::fromLatin1(wantedFace), QString::fromLatin1(equalFace));
    // Such a system has no face of its own for menus and forms either.
    QFont plain = QGuiApplication::font();
    plain.setFamily(QString::fromLatin1(equalFace));
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr)
        QApplication::setFont(plain);  // menus and boxes, which have fonts of their own, included
    else
        QGuiApplication::setFont(plain);
}

}  // namespace zg
