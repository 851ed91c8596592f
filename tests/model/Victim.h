#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>

#include "desktop/Descriptor.h"
#include "tests/model/Operation.h"

namespace model {

/// A phone and its model in a process of their own, which can be killed at any moment. The kernel
/// kills it: a parent that waits for the moment would miss most of an operation.
class Victim {
 public:
  using Moment = std::optional<std::chrono::microseconds>;

  /// Starts on the phone in that folder, which holds `kept`, and dies at that moment of the start.
  Victim(const std::filesystem::path& phone, const Kept& kept, Moment death = {});
  Victim(const Victim&) = delete;
  Victim& operator=(const Victim&) = delete;
  ~Victim() { kill(); }

  /// Gives it an operation to do, and to die at that moment of it, if it is still about it then.
  void order(const Operation& operation, Moment death = {}) const;

  /// Waits for its next line: after its start "", after each operation first "", which says that it
  /// is done, then where the phone differs from the model. None when it is dead and said no more.
  std::optional<std::string> line() const;

  /// Kills it (SIGKILL). What it said before can still be read.
  void kill();

 private:
  desktop::Descriptor ours_{-1};
  pid_t process_ = -1;
};

}  // namespace model
