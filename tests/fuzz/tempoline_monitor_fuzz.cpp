#include "tests/fuzz/TempolineFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zg::tempoline::readAnyBytes(zg::tempoline::InputKind::MonitorW, data, size);
    return 0;
}
