// Any bytes as a file of this format: gives its contents or a RunTimeError, and nothing else.

#include "headers/TsfHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(tsf) {
    readAsFile(data, size,
               [&]([[maybe_unused]] zg::Host& host, const std::string& path) { zg::readTsfHeader(path); });
    return 0;
}
