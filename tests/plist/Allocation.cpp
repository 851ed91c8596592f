#include "tests/plist/Allocation.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

constexpr std::size_t kNever = static_cast<std::size_t>(-1);

std::size_t used = 0;
std::size_t most = 0;
std::size_t count = 0;
std::size_t untilDenial = kNever;
bool denied = false;

void* allocate(std::size_t size) {
  if (untilDenial != kNever && untilDenial-- == 0) {
    denied = true;
    untilDenial = kNever;
    return nullptr;
  }
  void* const block = std::malloc(size);
  if (block != nullptr) used += malloc_usable_size(block);
  if (used > most) most = used;
  ++count;
  return block;
}

void release(void* block) {
  if (block != nullptr) used -= malloc_usable_size(block);
  std::free(block);
}

void* allocateOrThrow(std::size_t size) {
  void* const block = allocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

}  // namespace

void* operator new(std::size_t size) { return allocateOrThrow(size); }
void* operator new[](std::size_t size) { return allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t) noexcept { release(block); }

namespace allocation {

std::size_t inUse() { return used; }
std::size_t peak() { return most; }
void resetPeak() { most = used; }
std::size_t times() { return count; }

void denyAfter(std::size_t passing) {
  denied = false;
  untilDenial = passing;
}

bool endDenial() {
  untilDenial = kNever;
  return denied;
}

}  // namespace allocation
