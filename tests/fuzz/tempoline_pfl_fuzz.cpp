#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_pfl) {
    zg::tempoline::readAnyBytes(zg::InputKind::AermPfl, data, size);
    return 0;
}
