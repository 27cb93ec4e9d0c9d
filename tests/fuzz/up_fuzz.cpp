// Any bytes as a file of this format: gives its contents or a HeaderError, and nothing else.

#include "headers/UpHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(up) {
    readHeader(data, size, [&](zg::HeaderSource& source) { zg::readUpHeader(source); });
    return 0;
}
