#pragma once

namespace zg {

/// Large blocks (pages, pictures) are taken from the system one by one and so go back to it as soon as they
/// are free. To be called before the first window. Does nothing where the C library has no such choice.
void useMemorySparingly();

/// Drops painted icons, which are made again when they are needed, and gives back what lies free between the
/// blocks in use.
void giveBackMemory();

}  // namespace zg
