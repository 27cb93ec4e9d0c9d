#include "platform/Memory.h"

#include <QPixmapCache>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace zg {

void useMemorySparingly() {
#ifdef M_MMAP_THRESHOLD
    // Set explicitly, the threshold remains; otherwise the library raises it with each large block that is
    // freed.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
}

void giveBackMemory() {
    // The icons of each file dialog are cached under new keys, so they are never reused.
    QPixmapCache::clear();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace zg
