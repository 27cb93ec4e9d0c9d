// Any bytes as a file of this format: gives its contents or a HeaderError, and nothing else.

#include "headers/MonitorHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(monitor) {
    readHeader(data, size, [&](zg::HeaderSource& source) { zg::readMonitorHeader(source); });
    return 0;
}
