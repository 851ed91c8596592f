#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace bench {

/// A program that serves until it is ended, and says so in its first line.
class Server {
 public:
  /// Starts it and waits for that line. Throws `std::system_error` when it cannot be started and
  /// `std::runtime_error` when it says nothing.
  explicit Server(const std::vector<std::string>& command);
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  /// Ends it by SIGTERM and waits for its end.
  ~Server();

  pid_t process() const { return process_; }

 private:
  pid_t process_ = -1;
};

}  // namespace bench
