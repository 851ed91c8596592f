#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// A command to be run once or many times, its words separated by spaces as in a shell: "plget key
/// < file" has a file as its standard input.
class Command {
 public:
  explicit Command(std::string_view line);

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
