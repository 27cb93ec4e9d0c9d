// Any bytes as the table of datums: its rows come back whole, or a RunTimeError.

#include "base/Lines.h"
#include "base/Paths.h"
#include "dialogs/gridded/DatumTable.h"
#include "tests/fuzz/PointFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static char directory[] = "/tmp/datum_fuzz_XXXXXX";
    static const bool made = mkdtemp(directory) != nullptr;
    if (!made) std::abort();
    zg::applicationDirectory = directory;
    try {
        zg::LineWriter file(zg::inApplicationDirectory("datums.csv"));
        file.write({reinterpret_cast<const char*>(data), size});
        file.close();
        zg::ReadDatumTable();
    } catch (const zg::RunTimeError&) {
        return 0;
    }
    return 0;
}
