// Any bytes as a file of this format: gives its contents or a RunTimeError, and nothing else.

#include "headers/SurfHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(surf) {
    readAsFile(data, size, [&]([[maybe_unused]] zg::Host& host, const std::string& path) {
        zg::SurfHeader header;
        zg::readSurfHeader(host, path, header);
    });
    return 0;
}
