// Any bytes as a file of this format: gives its contents or a RunTimeError, and nothing else.

#include "headers/MonitorHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(monitor) {
    readAsFile(data, size, [&]([[maybe_unused]] zg::Host& host, const std::string& path) {
        zg::readMonitorHeader(path);
    });
    return 0;
}
