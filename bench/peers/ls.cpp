#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "bench/support/Animations.h"
#include "bench/support/Contestant.h"

/// `ls -U`, a process each time, which only lists the names. What it writes is thrown away.
namespace {

using namespace bench;

void check(int error) {
  if (error) throw std::system_error(error, std::generic_category(), "ls");
}

void list(std::string folder) {
  std::string program = "ls";
  std::string unsorted = "-U";
  char* const words[] = {program.data(), unsorted.data(), folder.data(), nullptr};
  posix_spawn_file_actions_t actions;
  check(posix_spawn_file_actions_init(&actions));
  check(posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0));
  pid_t process = 0;
  check(posix_spawnp(&process, words[0], &actions, nullptr, words, environ));
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  if (waitpid(process, &status, 0) < 0 || status) throw std::runtime_error("ls failed");
}

Trial catalogue(std::size_t size, const std::filesystem::path& folder) {
  return [animations = installAnimations(size, folder).animations.string()] { list(animations); };
}

constexpr Case cases[] = {{"catalogue", catalogue}};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
