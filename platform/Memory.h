#pragma once

namespace zg {

/// Makes the C library allocate large blocks (pages, pictures) separately from the system, so that they are
/// returned as soon as they are freed. Must be called before the first window. Does nothing if the C library
/// has no such option.
void useMemorySparingly();

/// Drops cached icons, which are recreated on demand, and returns free memory between the blocks in use.
void giveBackMemory();

}  // namespace zg
