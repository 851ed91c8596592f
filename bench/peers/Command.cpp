#include "bench/peers/Command.h"

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "bench/support/Contestant.h"

namespace bench {

namespace {

/// Where a process's standard streams lead.
class Streams {
 public:
  Streams(const char* input, const char* output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, input, O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, output, O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  }
  Streams(const Streams&) = delete;
  Streams& operator=(const Streams&) = delete;
  ~Streams() { posix_spawn_file_actions_destroy(&actions_); }

  const posix_spawn_file_actions_t* actions() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

int statusOf(pid_t process) {
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  return status;
}

}  // namespace

Command::Command(const std::vector<std::string>& words) {
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (*word == "<") {
      input_ = *++word;
    } else {
      words_.push_back(*word);
    }
  }
}

void Command::run() const { run("/dev/null"); }

std::string Command::output(const std::filesystem::path& folder) const {
  const std::string path = folder / "output";
  run(path.c_str());
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Command::run(const char* output) const {
  std::vector<char*> arguments;
  for (const std::string& word : words_) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t process = -1;
  const int error = posix_spawnp(&process, arguments[0], Streams(input_.c_str(), output).actions(),
                                 nullptr, arguments.data(), environ);
  if (error == ENOENT) throw Unavailable(words_[0] + " is not installed");
  if (error != 0) throw std::system_error(error, std::generic_category(), words_[0]);
  if (statusOf(process) != 0) throw std::runtime_error(words_[0] + " failed");
}

}  // namespace bench
