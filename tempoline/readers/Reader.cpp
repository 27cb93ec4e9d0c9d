#include "tempoline/readers/Reader.h"

#include "tempoline/Failure.h"
#include "tempoline/readers/Readers.h"

namespace zg::tempoline {

std::unique_ptr<InputReader> makeReader(const Control& control) {
    switch (control.kind) {
        case InputKind::AermSfc:
            return makeAermetSurface(control);
        case InputKind::AermPfl:
            return makeAermetProfile(control);
        case InputKind::Surf:
            return makeSurf(control);
        case InputKind::Up:
            return makeUp(control);
        case InputKind::MonitorW:
            return makeMonitor(control);
        case InputKind::Tsf:
            return makeTsf(control);
        case InputKind::M3d:
            return makeM3d(control);
        case InputKind::Ventos:
            return makeVentos(control);
    }
    throw Failure(ExitStatus::BadControl, "the type of input is not known");
}

}  // namespace zg::tempoline
