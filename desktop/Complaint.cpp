#include "desktop/Complaint.h"

#include <climits>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace desktop {

void complain(std::string_view line) {
  // A pipe with room at all takes that much at once (pipe(7)).
  const std::string text =
      std::string("quillmere-settings: ").append(line).substr(0, PIPE_BUF - 1) + '\n';
  pollfd standardError{STDERR_FILENO, POLLOUT, 0};
  if (poll(&standardError, 1, 0) == 1 && (standardError.revents & POLLOUT) != 0) {
    [[maybe_unused]] const ssize_t put = write(STDERR_FILENO, text.data(), text.size());
  }
}

}  // namespace desktop
