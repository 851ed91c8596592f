#include "desktop/Complaint.h"

#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace desktop {

namespace {

/// Standard error; a terminal, which may be stopped, is opened a second time so as not to wait for
/// it without changing how others who have it open wait.
int standardError() {
  if (isatty(STDERR_FILENO) == 0) return STDERR_FILENO;
  const int own = open("/proc/self/fd/2", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  return own < 0 ? STDERR_FILENO : own;
}

}  // namespace

void complain(std::string_view line) {
  static const int number = standardError();
  // A pipe with room at all takes that much at once (pipe(7)).
  const std::string text =
      std::string("quillmere-settings: ").append(line).substr(0, PIPE_BUF - 1) + '\n';
  pollfd room{number, POLLOUT, 0};
  if (poll(&room, 1, 0) == 1 && (room.revents & POLLOUT) != 0) {
    [[maybe_unused]] const ssize_t put = write(number, text.data(), text.size());
  }
}

}  // namespace desktop
