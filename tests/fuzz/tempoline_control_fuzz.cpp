// Any bytes as a control file: gives a run or a Failure, and nothing else.

#include <cstdint>
#include <string_view>

#include "tempoline/ControlLexer.h"
#include "tempoline/ControlReader.h"
#include "tempoline/Failure.h"
#include "tempoline/ListingName.h"
#include "tests/fuzz/Fuzz.h"

FUZZ_TARGET(tempoline_control) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        zg::tempoline::freeListingName(text, "c.inp");
        zg::tempoline::readControl(text, "c.inp");
    } catch (const zg::tempoline::Failure&) {
        return 0;  // an expected outcome
    }
    return 0;
}
