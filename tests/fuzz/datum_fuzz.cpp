// Any bytes as the table of datums: gives whole rows or a RunTimeError.

#include "dialogs/gridded/DatumTable.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PointFuzz.h"

FUZZ_TARGET(datum) {
    readAsFile(data, size, [](zg::Host&, const std::string& path) {
        static char directory[] = "/tmp/datum_fuzz_XXXXXX";
        static const bool made = (useAsApplicationDirectory(directory, path, {"datums.csv"}), true);
        if (made) zg::ReadDatumTable();
    });
    return 0;
}
