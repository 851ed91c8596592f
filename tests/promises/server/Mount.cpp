#include "tests/promises/server/Mount.h"

#include <fstream>
#include <string>
#include <sys/mount.h>

namespace promises {

Mount::Mount(const std::filesystem::path& folder, std::size_t size)
    : folder_(folder),
      isMounted_(mount("none", folder.c_str(), "tmpfs", 0,
                       ("size=" + std::to_string(size)).c_str()) == 0) {}

Mount::~Mount() {
  if (isMounted_) umount2(folder_.c_str(), MNT_DETACH);
}

void Mount::fill() const {
  std::ofstream file(filling(), std::ios::binary);
  while (file << std::string(4096, 'x') << std::flush) {
  }
}

void Mount::empty() const { std::filesystem::remove(filling()); }

}  // namespace promises
