// Any bytes as a file of this format: gives its contents or a HeaderError, and nothing else.

#include "headers/TsfHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(tsf) {
    readHeader(data, size, [&](zg::HeaderSource& source) { zg::readTsfHeader(source); });
    return 0;
}
