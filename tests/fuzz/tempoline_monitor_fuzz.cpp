#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_monitor) {
    zg::tempoline::readAnyBytes(zg::InputKind::MonitorW, data, size);
    return 0;
}
