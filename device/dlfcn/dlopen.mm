#include "platform/dlfcn/dlopen.h"

#include <dlfcn.h>

#include "device/Paths.h"

namespace platform {

#ifdef __APPLE__
static_assert(static_cast<int>(DlopenMode::Global) == RTLD_GLOBAL);
#endif

void dlopen(const NSString& path, DlopenMode mode) {
  // Without a path this would be the program itself, which nobody asks for.
  if (path) ::dlopen([device::resolved(path) UTF8String], static_cast<int>(mode));
}

}  // namespace platform
