#include "settings/cli/Run.h"

#include <cerrno>
#include <iostream>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "settings/cli/Hands.h"
#include "settings/cli/Words.h"

namespace settings::cli {

namespace {

/// A reader who has gone, as `head` does, has read enough.
void print(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0 && errno == EPIPE) return;
    if (written < 0) throw std::system_error(errno, std::generic_category(), "standard output");
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

int run(const Options& options) {
  try {
    Hands hands(options);
    print(options.subCommand->perform(hands, options.request));
    return 0;
  } catch (const UsageError& mistake) {
    std::cerr << "quillmere-settings: " << visible(mistake.what()) << std::endl;
    return 2;
  }
}

}  // namespace settings::cli
