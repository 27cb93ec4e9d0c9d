#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_m3d) {
    zg::tempoline::readAnyBytes(zg::InputKind::M3d, data, size);
    return 0;
}
