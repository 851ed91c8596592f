#include "plist/Expat.h"

#include <cstring>
#include <new>

namespace plist {
namespace {

// Expat's allocation functions take no context, so the account is the thread's.
thread_local std::size_t used = 0;
thread_local bool refused = false;

/// Stands before each block, as wide as the strictest alignment.
struct alignas(std::max_align_t) Header {
  std::size_t size;
};

void* allocate(std::size_t size) {
  if (size > kExpatBytes - used) {
    refused = true;
    return nullptr;
  }
  void* const block = ::operator new(sizeof(Header) + size, std::nothrow);
  if (block == nullptr) return nullptr;
  used += size;
  return new (block) Header{size} + 1;
}

void release(void* memory) {
  if (memory == nullptr) return;
  Header* const header = static_cast<Header*>(memory) - 1;
  used -= header->size;
  ::operator delete(header);
}

void* reallocate(void* memory, std::size_t size) {
  void* const grown = allocate(size);
  if (grown == nullptr || memory == nullptr) return grown;
  const std::size_t old = (static_cast<Header*>(memory) - 1)->size;
  std::memcpy(grown, memory, old < size ? old : size);
  release(memory);
  return grown;
}

constexpr XML_Memory_Handling_Suite kMemory = {allocate, reallocate, release};

}  // namespace

ExpatParser::ExpatParser(const char* encoding) {
  refused = false;
  parser_ = XML_ParserCreate_MM(encoding, &kMemory, nullptr);
  if (parser_ == nullptr) throw std::bad_alloc();
}

bool ExpatParser::wentBeyondBound() noexcept { return refused; }

}  // namespace plist
