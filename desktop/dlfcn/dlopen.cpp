#include "platform/dlfcn/dlopen.h"

#include "desktop/Message.h"

namespace platform {

void dlopen(const NSString& path, DlopenMode mode) {
  // The phone's libraries cannot run here: their classes are either stood in for or missing
  // (`Phone::missingClasses`), and loading changes neither.
  desktop::sendClass("dlfcn", "dlopen:mode:", {path, static_cast<double>(static_cast<int>(mode))},
                     [] {});
}

}  // namespace platform
