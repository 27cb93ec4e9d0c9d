// Any bytes as a table of winds: its layout is found out, or told to be none, and with that layout the
// processor's reader reads all of it or tells a line.

#include <algorithm>

#include "base/RunTimeError.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/TempolineFuzz.h"
#include "windtable/TableGuess.h"

FUZZ_TARGET(windtable) {
    using namespace zg::tempoline;
    static const int file = memfd_create("table", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size)) std::abort();
    Control control = fuzzControl(zg::InputKind::Csv);
    try {
        const zg::TableFacts facts = zg::guessTable(path, {});
        if (facts.records <= 0 || facts.end <= facts.begin || facts.layout.columns() == 0) std::abort();
        zg::takenText(facts);
        control.table = facts.layout;
        control.begin = facts.begin;
        control.step = facts.layout.recordSeconds;
        control.end = std::min(facts.end, facts.begin + 1000 * control.step);
    } catch (const zg::TableProblem&) {
        return 0;
    } catch (const zg::RunTimeError&) {
        return 0;
    }
    std::vector<Series> series;
    series.emplace_back(control);
    try {
        makeReader(control)->read(path, series);
    } catch (const Failure&) {
        return 0;
    }
    series[0].finish();
    const RecordCounts& records = series[0].records();
    if (records.read != records.used + records.missing + records.outside + records.duplicate) std::abort();
    return 0;
}
