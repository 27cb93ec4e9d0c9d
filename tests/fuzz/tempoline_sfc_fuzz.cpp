#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_sfc) {
    zg::tempoline::readAnyBytes(zg::InputKind::AermSfc, data, size);
    return 0;
}
