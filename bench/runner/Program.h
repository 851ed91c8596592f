#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace bench {

/// A program that runs beside this one, with its standard input and output in our hands.
class Program {
 public:
  /// Starts it; the first part of the command is looked for in PATH. Throws `std::system_error`.
  explicit Program(const std::vector<std::string>& command);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  /// Ends its input and waits for its end.
  ~Program();

  /// Sends a line. A program that has ended does not read it, which is no error here.
  void writeLine(std::string_view line);

  /// The next line that it prints, waited for; none when it prints no more. A program that says
  /// nothing for ten minutes is killed, and throws `std::runtime_error`.
  std::optional<std::string> readLine();

  void endInput();

  /// Ends its input and waits for it. Answers its exit status; 128 and the signal's number for one
  /// that a signal ended, as shells do.
  int wait();

 private:
  void awaitOutput();

  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string read_;
};

}  // namespace bench
