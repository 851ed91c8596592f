#include "fuzz/OpenedFiles.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <sys/inotify.h>
#include <system_error>
#include <unistd.h>

namespace fuzz {

OpenedFiles::OpenedFiles(const std::filesystem::path& folder)
    : events_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  if (inotify_add_watch(events_.number(), folder.c_str(), IN_OPEN | IN_ACCESS) < 0) {
    throw std::system_error(errno, std::generic_category(), "inotify_add_watch");
  }
}

bool OpenedFiles::any() {
  std::array<char, 4096> buffer;
  for (ssize_t size; (size = read(events_.number(), buffer.data(), buffer.size())) > 0;) {
    inotify_event event;
    for (ssize_t at = 0; at < size; at += static_cast<ssize_t>(sizeof event + event.len)) {
      std::memcpy(&event, &buffer[static_cast<std::size_t>(at)], sizeof event);
      // Without a name it is about the folder itself.
      if (event.len > 0 && !(event.mask & IN_IGNORED)) return true;
    }
  }
  return false;
}

}  // namespace fuzz
