// Any bytes as a file of this format: gives its contents or a HeaderError, and nothing else.

#include "headers/AermetPeriod.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(aermet) {
    readHeader(data, size, [&](zg::HeaderSource& source) {
        zg::readAermetPeriod(source, size % 2 == 0 ? zg::InputKind::AermSfc : zg::InputKind::AermPfl);
    });
    return 0;
}
