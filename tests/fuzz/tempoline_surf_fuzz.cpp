#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_surf) {
    zg::tempoline::readAnyBytes(zg::InputKind::Surf, data, size);
    return 0;
}
