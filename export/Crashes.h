#pragma once

namespace zg {

/// Libraries below the toolkit do not check their allocations and crash without memory. From now on a crash
/// while the system has no memory to give is reported as such, and unfinished pictures are removed; every
/// other crash remains a crash.
void tellLackOfMemory();

}  // namespace zg
