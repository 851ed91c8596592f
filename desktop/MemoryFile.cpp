#include "desktop/MemoryFile.h"

#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace desktop {

namespace {

std::system_error failure(const char* what) { return {errno, std::generic_category(), what}; }

}  // namespace

Descriptor memoryFile(std::string_view bytes) {
  Descriptor file(memfd_create("memory", MFD_CLOEXEC));
  if (file.number() < 0) throw failure("memfd_create");
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
    if (written < 0) throw failure("write");
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  if (lseek(file.number(), 0, SEEK_SET) != 0) throw failure("lseek");
  return file;
}

std::string contentsOf(const Descriptor& memoryFile) {
  struct stat status {};
  if (fstat(memoryFile.number(), &status) < 0) throw failure("fstat");
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  for (std::size_t filled = 0; filled < bytes.size();) {
    const ssize_t got = pread(memoryFile.number(), bytes.data() + filled, bytes.size() - filled,
                              static_cast<off_t>(filled));
    if (got < 0) throw failure("pread");
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  return bytes;
}

}  // namespace desktop
