#include "fuzz/Input.h"
#include "fuzz/Survival.h"

/// Property lists by their bytes, which are XML unless they say that they are binary. Those are
/// left to binary_fuzz, so that all time goes into XML.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file = fuzz::view(bytes, size);
  if (!file.starts_with("bplist00")) fuzz::requireSurvival(std::string(file));
  return 0;
}
