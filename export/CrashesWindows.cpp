#include "export/Crashes.h"

namespace zg {

/// The system commits memory when it is allocated, so a lack of it is an error of the call.
void tellLackOfMemory() {}

}  // namespace zg
