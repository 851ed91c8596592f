#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace program_tests {

/// How the program is started.
struct Start {
  std::vector<std::string> arguments{};
  /// Variables to set or, with none, to remove. A display is removed unless it is named here.
  std::map<std::string, std::optional<std::string>> environment{};
  /// Whether root becomes nobody first, so that file modes count.
  bool unprivileged = false;
  /// How many files may be open at once; none leaves it as it is.
  std::optional<unsigned> openFiles{};
  /// What is typed on the terminal that standard input and standard error then are. Without one,
  /// nothing can be read.
  std::optional<std::string> typed{};
  /// What becomes of standard output and of standard error. What is Read is read while something of
  /// it is waited for; until then it waits in a pipe, which can be full.
  enum class Output { Read, Closed, Broken } output = Output::Read, errors = Output::Read;
};

/// How the program ended.
struct End {
  int exitCode;  ///< 128 and the signal's number when a signal ended it.
  std::string out;
  std::string err;
};

/// The program in a process of its own, which does not outlive this object.
class Program {
 public:
  explicit Program(const Start& start);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  /// The first line on standard output, without its end; what there is of it when the program ends
  /// or nothing comes for 30 seconds.
  std::string firstLine();

  /// Of the printed address.
  std::uint16_t port();
  /// The printed address without its origin: "/?token=…".
  std::string invitation();

  /// What the program has open under that number.
  std::string openFile(int number) const;

  /// By which the system knows it, in /proc for one (proc(5)).
  pid_t process() const { return process_; }
  void signal(int number) const;
  /// Reads what it has printed so far, so that there is room for more.
  void hear();
  /// Waits for the end, 30 seconds at most; then it is killed.
  End end();

 private:
  /// Takes what comes on either stream; false when both are at their end or after the time.
  bool readSome(int milliseconds);

  pid_t process_ = -1;
  int streams_[2] = {-1, -1};
  std::string texts_[2];
};

End run(const Start& start);

}  // namespace program_tests
