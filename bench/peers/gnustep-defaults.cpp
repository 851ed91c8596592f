#include <stdexcept>

#include "bench/peers/Foundation.h"
#include "bench/peers/Home.h"
#include "bench/support/Contestant.h"

/// A user's defaults (NSUserDefaults) as GNUstep has them: kept in the program, loaded again when
/// the file's time is another. Storing takes a lock, writes the program's domain aside and renames
/// it; nothing is synced, so it competes only where nobody waits for the disk.
namespace {

using namespace bench;

void store(id defaults) {
  if (!send<BOOL>(defaults, "synchronize")) throw std::runtime_error("GNUstep could not store");
}

Trial change(std::size_t size, const std::filesystem::path&) {
  const Pool pool;
  const id defaults = send(classNamed("NSUserDefaults"), "standardUserDefaults");
  fill(defaults, size);
  store(defaults);
  return [defaults, next = 2]() mutable {
    const Pool each;
    send<void>(defaults, "setObject:forKey:", objectOf(++next), text(changedKey));
    store(defaults);
  };
}

constexpr Case cases[] = {{"change-unsynced", change}};

}  // namespace

int main(int argc, char** argv) {
  startAtHome(argc, argv);
  return compete(argc, argv, cases);
}
