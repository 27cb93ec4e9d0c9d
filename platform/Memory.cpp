#include "platform/Memory.h"

#include <QPixmapCache>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace zg {

void useMemorySparingly() {
#ifdef M_MMAP_THRESHOLD
    // Said outright, the bound stays; left alone, the library raises it with each large block that is freed.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
}

void giveBackMemory() {
    // The icons of each file dialog are kept under names of their own, so that they are never found again.
    QPixmapCache::clear();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace zg
