// As a part of a program, before the C library, this makes one of its allocations fail.

#include <cerrno>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include "tests/promises/crash/failing/Count.h"

// The C library's own, under the names that it keeps for whoever puts others in their place.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}

namespace {

using Main = int (*)(int, char**, char**);

crash_tests::AllocationCount* count = nullptr;
Main programMain = nullptr;

bool fails() {
  if (!count || ++count->made != count->failing) return false;
  errno = ENOMEM;
  return true;
}

int countingMain(int argumentCount, char** arguments, char** environment) {
  const int file = open(std::getenv(crash_tests::AllocationCount::variable), O_RDWR | O_CLOEXEC);
  void* const shared = mmap(nullptr, sizeof *count, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  close(file);
  if (shared == MAP_FAILED) _exit(125);
  count = static_cast<crash_tests::AllocationCount*>(shared);
  return programMain(argumentCount, arguments, environment);
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) noexcept { return fails() ? nullptr : __libc_malloc(size); }

void* calloc(std::size_t number, std::size_t size) noexcept {
  return fails() ? nullptr : __libc_calloc(number, size);
}

void* realloc(void* memory, std::size_t size) noexcept {
  return fails() ? nullptr : __libc_realloc(memory, size);
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
  return fails() ? nullptr : __libc_memalign(alignment, size);
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  return memalign(alignment, size);
}

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
  void* const made = memalign(alignment, size);
  if (made) *memory = made;
  return made ? 0 : ENOMEM;
}

int __libc_start_main(Main main, int argumentCount, char** arguments, void (*begin)(),
                      void (*end)(), void (*endOfLinker)(), void* stackEnd) {
  using Start = decltype(&__libc_start_main);
  programMain = main;
  const auto start = reinterpret_cast<Start>(dlsym(RTLD_NEXT, "__libc_start_main"));
  return start(&countingMain, argumentCount, arguments, begin, end, endOfLinker, stackEnd);
}
}
