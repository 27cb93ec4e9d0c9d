// Any bytes as a file of this format: gives its contents or a HeaderError, and nothing else.

#include "headers/SurfHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(surf) {
    readHeader(data, size, [&](zg::HeaderSource& source) {
        zg::SurfHeader header;
        zg::readSurfHeader(source, header);
    });
    return 0;
}
