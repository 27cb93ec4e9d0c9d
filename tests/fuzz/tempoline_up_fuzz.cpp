#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_up) {
    zg::tempoline::readAnyBytes(zg::InputKind::Up, data, size);
    return 0;
}
