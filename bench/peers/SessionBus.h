#pragma once

#include <sys/types.h>

namespace bench {

/// A D-Bus session of this program's own, which ends with it. While it lives, the environment leads
/// to it.
class SessionBus {
 public:
  /// Throws `Unavailable` without `dbus-daemon`.
  SessionBus();
  SessionBus(const SessionBus&) = delete;
  SessionBus& operator=(const SessionBus&) = delete;
  ~SessionBus();

 private:
  pid_t daemon_ = -1;
};

}  // namespace bench
