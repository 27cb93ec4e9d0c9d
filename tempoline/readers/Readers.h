#pragma once

// One factory per kind of input; makeReader chooses.

#include <memory>

#include "tempoline/readers/Reader.h"

namespace zg::tempoline {

std::unique_ptr<InputReader> makeAermetSurface(const Control& control);
std::unique_ptr<InputReader> makeAermetProfile(const Control& control);
std::unique_ptr<InputReader> makeSurf(const Control& control);
std::unique_ptr<InputReader> makeUp(const Control& control);
std::unique_ptr<InputReader> makeMonitor(const Control& control);
std::unique_ptr<InputReader> makeTsf(const Control& control);
std::unique_ptr<InputReader> makeM3d(const Control& control);
std::unique_ptr<InputReader> makeVentos(const Control& control);
std::unique_ptr<InputReader> makeCsv(const Control& control);

}  // namespace zg::tempoline
