#pragma once

#include <cstddef>

/// Counts the memory of this program, and denies it on demand. The functions that `new` calls are
/// replaced for the whole program.
namespace allocation {

/// Bytes allocated and not freed.
std::size_t inUse();
/// The most there has been since the last call of resetPeak().
std::size_t peak();
void resetPeak();

/// How often memory was allocated so far.
std::size_t times();

/// Lets `count` allocations pass and denies the one after them, once.
void denyAfter(std::size_t count);
/// Whether one was denied since; denies no more.
bool endDenial();

}  // namespace allocation
