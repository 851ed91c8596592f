#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

#include "desktop/FreedMemory.h"
#include "settings/Options.h"
#include "settings/Serve.h"
#include "settings/cli/Run.h"
#include "settings/cli/Words.h"

using namespace settings;

namespace {

/// Gives each standard stream that is closed a place to go. Its number would otherwise go to the
/// next file or socket, which would then get what is printed.
void openStandardStreams() {
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // What is opened gets the lowest number that is free.
    if (fcntl(number, F_GETFD) < 0) open("/dev/null", O_RDWR);
  }
}

}  // namespace

int main(int argc, char** argv) {
  openStandardStreams();
  desktop::keepFreedMemory();
  std::signal(SIGPIPE, SIG_IGN);  // Nobody may be reading what is printed.
  const ParsedOptions parsed = parseOptions(argc, argv);
  if (parsed.exitCode) return *parsed.exitCode;
  try {
    if (parsed.options.subCommand) return cli::run(parsed.options);
    serve(parsed.options);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "quillmere-settings: " << cli::visible(failure.what()) << std::endl;
    return 1;
  }
}
