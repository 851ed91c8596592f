#include <stdexcept>
#include <utility>

#include "bench/peers/Tools.h"
#include "bench/support/Contestant.h"

/// One setting got and set by a program of the command line, from its start to its end.
namespace {

using namespace bench;
using Folder = std::filesystem::path;

Command command(const char* line, const Tool& tool, const char* value, const Folder& folder) {
  return commandOf(line, tool.key, value, folder);
}

/// What the tool gets after the value was set.
std::string gotAfter(const char* value, const Tool& tool, const Folder& folder) {
  command(tool.set, tool, value, folder).run();
  return command(tool.get, tool, value, folder).output(folder);
}

/// A tool that is timed has to do what it is timed for.
void check(const Tool& tool, const Folder& folder) {
  if (&tool == &nothing) return;
  const bool tells = tool.set ? gotAfter(tool.on, tool, folder) != gotAfter(tool.off, tool, folder)
                              : command(tool.get, tool, "", folder).output(folder) != "";
  if (!tells) throw std::runtime_error("what is set is not what is got");
}

template <const Tool& tool>
Trial get(std::size_t size, const Folder& folder) {
  const std::shared_ptr<void> kept = tool.prepare(tool, size, folder);
  check(tool, folder);
  return [kept, once = command(tool.get, tool, tool.on, folder)] { once.run(); };
}

/// Each command changes what the one before it has set.
template <const Tool& tool>
Trial set(std::size_t size, const Folder& folder) {
  const std::shared_ptr<void> kept = tool.prepare(tool, size, folder);
  check(tool, folder);
  return [kept, next = command(tool.set, tool, tool.on, folder),
          other = command(tool.set, tool, tool.off, folder)]() mutable {
    next.run();
    std::swap(next, other);
  };
}

constexpr Case cases[] = {
    {"nothing", get<nothing>},         {"ours-get", get<ours>},
    {"ours-set", set<ours>},           {"gsettings-get", get<gsettings>},
    {"gsettings-set", set<gsettings>}, {"dconf-get", get<dconf>},
    {"dconf-set", set<dconf>},         {"kconfig-get", get<kconfig>},
    {"kconfig-set", set<kconfig>},     {"defaults-get", get<defaults>},
    {"defaults-set", set<defaults>},   {"plget", get<plmerge>},
    {"plmerge", set<plmerge>},         {"plistutil", get<plistutil>},
};

}  // namespace

int main(int argc, char** argv) { return compete(argc, argv, cases); }
