#include "desktop/FreedMemory.h"

#include <malloc.h>

namespace desktop {

namespace {

constexpr int keptBytes = 3 << 20;

}  // namespace

void keepFreedMemory() {
  mallopt(M_TRIM_THRESHOLD, keptBytes);
  mallopt(M_MMAP_THRESHOLD, keptBytes);
}

}  // namespace desktop
