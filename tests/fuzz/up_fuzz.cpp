// Any bytes as a file of this format: gives its contents or a RunTimeError, and nothing else.

#include "headers/UpHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(up) {
    readAsFile(data, size, [&]([[maybe_unused]] zg::Host& host, const std::string& path) {
        zg::readUpHeader(host, path);
    });
    return 0;
}
