#include "fuzz/Input.h"
#include "fuzz/Survival.h"

/// Binary property lists. Whatever the first bytes are, they are taken to say so, so that all time
/// goes into what follows them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  constexpr std::string_view magic = "bplist00";
  if (size < magic.size()) return 0;
  fuzz::requireSurvival(std::string(magic).append(fuzz::view(bytes, size).substr(magic.size())));
  return 0;
}
