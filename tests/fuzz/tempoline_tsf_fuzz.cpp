#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_tsf) {
    zg::tempoline::readAnyBytes(zg::InputKind::Tsf, data, size);
    return 0;
}
