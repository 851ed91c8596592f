#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace bench {

/// A command to be run once or many times: a program, which is looked for in PATH, and its
/// arguments. A "<" and the path after it are no arguments, but name its standard input.
class Command {
 public:
  explicit Command(const std::vector<std::string>& words);

  /// Runs it and waits for it; what it prints goes nowhere. Throws `Unavailable` when it is not
  /// installed, `std::runtime_error` when it does not exit with 0.
  void run() const;

  /// The same, and what it prints on standard output, which it keeps in the folder meanwhile.
  std::string output(const std::filesystem::path& folder) const;

 private:
  void run(const char* output) const;

  std::vector<std::string> words_;
  std::string input_ = "/dev/null";
};

}  // namespace bench
