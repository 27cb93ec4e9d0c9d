#include "tempoline/PeriodLimit.h"

#include <sys/stat.h>

#include <array>
#include <cstdio>
#include <optional>

#include "base/Lines.h"
#include "base/Unzip.h"
#include "tempoline/ControlLexer.h"

namespace zg::tempoline {

namespace {

constexpr Seconds alwaysAllowed = 1'000'000;  // steps of all outputs: a century of hours
constexpr Seconds leastRecord = 16;           // bytes; no supported format has shorter ones
constexpr Seconds mostEmpty = 10;             // steps per record

bool isZippedFile(const std::string& path) {
    std::array<char, 2> start{};
    const FileHandle file(std::fopen(path.c_str(), "rb"));
    return file && std::fread(start.data(), 1, start.size(), file.get()) == start.size() &&
           Unzipper::isZipped({start.data(), start.size()});
}

std::optional<Seconds> sizeOf(const Control& control) {
    Seconds size = 0;
    for (const std::string& input : control.inputs) {
        struct stat state = {};
        if (stat(input.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) return {};
        size += isZippedFile(input) ? state.st_size * static_cast<Seconds>(Unzipper::mostOfOneByte)
                                    : state.st_size;
    }
    return size;
}

}  // namespace

void needDataForPeriod(const Control& control) {
    const Seconds steps = (control.end - control.begin) / control.step;
    if (steps * static_cast<Seconds>(control.outputs.size()) <= alwaysAllowed) return;
    const std::optional<Seconds> size = sizeOf(control);
    if (!size || steps <= mostEmpty * (*size / leastRecord)) return;
    throw controlFailure(control.file, control.endLine, "IEYR",
                         "the period has " + std::to_string(steps) + " steps, more than " +
                             std::to_string(mostEmpty) + " times as many as " + std::to_string(*size) +
                             " bytes of data can fill");
}

}  // namespace zg::tempoline
