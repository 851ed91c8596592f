#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>
#include <vector>

#include "bench/support/Animations.h"
#include "bench/support/Contestant.h"

namespace {

using bench::Trial;

int check(long result, const char* what) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), what);
  return static_cast<int>(result);
}

/// The names of a folder as the kernel hands them out, each of them passed by.
std::size_t countEntries(const char* folder) {
  alignas(dirent64) static std::array<char, 1 << 18> block;
  const int number = check(open(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC), folder);
  std::size_t entries = 0;
  while (const int size =
             check(syscall(SYS_getdents64, number, block.data(), block.size()), folder)) {
    for (int at = 0; at < size; ++entries) {
      at += reinterpret_cast<const dirent64*>(block.data() + at)->d_reclen;
    }
  }
  close(number);
  return entries;
}

Trial catalogue(std::size_t size, const std::filesystem::path& folder) {
  const std::string animations = bench::installAnimations(size, folder).animations;
  return [animations, size] {
    if (countEntries(animations.c_str()) != size + 2) throw std::runtime_error("a name is missing");
  };
}

/// Replaces a file by one of the same bytes that lasts, as any program has to.
void replace(int folder, const char* name, const std::string& bytes) {
  constexpr const char* aside = "aside";
  const int number =
      check(openat(folder, aside, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644), aside);
  for (std::size_t at = 0; at < bytes.size();) {
    at +=
        static_cast<std::size_t>(check(write(number, bytes.data() + at, bytes.size() - at), aside));
  }
  check(fsync(number), aside);
  close(number);
  check(renameat(folder, aside, folder, name), name);
  check(fsync(folder), name);
}

Trial change(std::size_t size, const std::filesystem::path& folder) {
  const auto file = bench::enableAnimations(size, folder).preferences;
  std::ifstream stored(file, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(stored), {}};
  const int parent =
      check(open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), file.c_str());
  return [parent, name = file.filename().string(), bytes] { replace(parent, name.c_str(), bytes); };
}

constexpr bench::Case cases[] = {
    {"catalogue", &catalogue},
    {"list-disable", &change},
    {"list-enable", &change},
    {"list-move", &change},
};

}  // namespace

int main(int argc, char** argv) { return bench::compete(argc, argv, cases); }
