#pragma once

#include <optional>
#include <string>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

#include "desktop/Descriptor.h"

namespace desktop {

/// Another program of this computer, run once. It gets its standard streams, the descriptors that
/// it is to inherit and nothing else that is open here, and no signal blocked or ignored.
class Process {
 public:
  struct Command {
    /// The program's path.
    std::string program;
    /// Without the program's own name.
    std::vector<std::string> arguments;
    /// What it reads; none is the empty device.
    std::optional<int> input;
    /// Where it writes: where this program does, unless another is named.
    int output = STDOUT_FILENO;
    /// Stay open under their numbers.
    std::vector<int> inherited;
    /// "NAME=VALUE", beside and before what this program has.
    std::vector<std::string> environment;
  };

  /// Starts it. Throws `std::system_error` when that cannot be done, and when it runs but its end
  /// could not be told; it is then collected later.
  explicit Process(const Command& command);
  Process(Process&&) noexcept = default;

  /// Does not end the program: one that runs on is collected later, once it has ended.
  ~Process();

  /// Becomes readable when the program has ended (pidfd_open(2)); closed with this object.
  int pidfd() const { return handle_.number(); }

  /// The program's exit status, or 128 and the number of the signal that ended it; none while it
  /// runs.
  std::optional<int> status();

  /// The same, once it has ended; blocks until then.
  int wait();

 private:
  pid_t pid_;
  Descriptor handle_;
  std::optional<int> status_;
};

}  // namespace desktop
