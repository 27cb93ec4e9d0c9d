#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"

FUZZ_TARGET(tempoline_ventos) {
    zg::tempoline::readAnyBytes(zg::InputKind::Ventos, data, size);
    return 0;
}
