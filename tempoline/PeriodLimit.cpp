#include "tempoline/PeriodLimit.h"

#include <array>
#include <cstdio>
#include <optional>

#include "base/Files.h"
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
    const FileHandle file(openStream(path, "rb"));
    return file && std::fread(start.data(), 1, start.size(), file.get()) == start.size() &&
           Unzipper::isZipped({start.data(), start.size()});
}

std::optional<Seconds> sizeOf(const Control& control) {
    Seconds size = 0;
    for (const std::string& input : control.inputs) {
        const std::optional<FileState> state = stateOfFile(input);
        if (!state || state->kind != FileKind::Plain) return {};
        const auto bytes = static_cast<Seconds>(state->size);
        size += isZippedFile(input) ? bytes * static_cast<Seconds>(Unzipper::mostOfOneByte) : bytes;
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
