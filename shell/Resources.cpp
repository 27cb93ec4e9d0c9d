#include "shell/Resources.h"

// Outside any namespace, as the toolkit's macro wants it: a library's resources have to be asked for.
static void loadResources() { Q_INIT_RESOURCE(shell); }

namespace zg {

QIcon programIcon(const char* name) {
    loadResources();
    return QIcon(QStringLiteral(":/shell/icons/") + QString::fromLatin1(name) + QStringLiteral(".svg"));
}

}  // namespace zg
