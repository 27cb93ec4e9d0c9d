// Any bytes as a gridded file of either format: gives a header, or a message that says what is wrong.

#include "headers/GridFileHeader.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(grid) {
    readAsFile(data, size, [&](zg::Host&, const std::string& path) {
        for (const zg::InputKind kind : {zg::InputKind::M3d, zg::InputKind::Ventos}) {
            zg::InfoViewResult result;
            zg::readGridFileHeader(path, kind, result);
            if ((result.errorFlag == 0) == result.PMAP.empty()) std::abort();
        }
    });
    return 0;
}
