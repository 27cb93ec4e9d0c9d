#pragma once

// The outputs of a run: TSFID and TSFOUT name each, and TSFID, LOCMET and MET say where its winds are.

#include <string>
#include <string_view>
#include <vector>

#include "tempoline/Control.h"
#include "tempoline/ControlKeys.h"

namespace zg::tempoline {

/// In the order of their TSFOUT; of a series that is read again the one rose that ROSEPLT names. Throws a
/// Failure where names and places do not belong together, or are not as many as NTSFOUT says.
std::vector<OutputRequest> readOutputs(ControlKeys& keys, InputKind kind);

/// The name itself; throws where it is empty or leads out of the current directory.
std::string plainFileName(const ControlKeys& keys, std::string_view key, const std::string& name);

}  // namespace zg::tempoline
