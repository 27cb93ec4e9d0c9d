#pragma once

namespace zg {

/// Libraries below the toolkit take memory for granted and crash without it. From here on, a crash where the
/// system has no memory to give is told as that, and unfinished pictures are removed; every other crash stays
/// one.
void tellLackOfMemory();

}  // namespace zg
