// Any bytes as a file of counts: what is read is written back as the same counts.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tempoline/Failure.h"
#include "tempoline/FrqWriter.h"
#include "tempoline/TabFile.h"
#include "tests/fuzz/Fuzz.h"

FUZZ_TARGET(tempoline_tab) {
    using namespace zg::tempoline;
    RoseReport report;
    try {
        report = readTab({reinterpret_cast<const char*>(data), size}, "a.tab");
    } catch (const Failure&) {
        return 0;  // an expected outcome
    }
    frqText(report);
    const std::string text = tabText(report);
    if (tabText(readTab(text, "a.tab")) != text) std::abort();
    return 0;
}
