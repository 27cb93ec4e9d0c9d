// Any bytes as a file of this format: gives its contents or a RunTimeError, and nothing else.

#include "headers/AermetPeriod.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(aermet) {
    readAsFile(data, size, [&]([[maybe_unused]] zg::Host& host, const std::string& path) {
        zg::readAermetPeriod(path, size % 2 == 0 ? zg::AermetKind::Surface : zg::AermetKind::Profile);
    });
    return 0;
}
