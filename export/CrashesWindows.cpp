#include "export/Crashes.h"

namespace zg {

/// The system gives memory out before it is used, so that the lack of it is an error of the call.
void tellLackOfMemory() {}

}  // namespace zg
