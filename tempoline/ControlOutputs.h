#pragma once

// The outputs of a run: TSFID and TSFOUT name each one; TSFID, LOCMET and MET give the place of its winds.

#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/ControlKeys.h"

namespace zg::tempoline {

/// In the order of their TSFOUT; a series that is read again has the one rose that ROSEPLT names. Throws a
/// Failure if names and places do not match, or if their number is not NTSFOUT.
std::vector<OutputRequest> readOutputs(ControlKeys& keys, InputKind kind);

/// Returns the name itself; throws if it is empty or leads out of the current directory.
std::string plainFileName(const ControlKeys& keys, std::string_view key, const std::string& name);

}  // namespace zg::tempoline
