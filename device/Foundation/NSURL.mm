#include "platform/Foundation/NSURL.h"

#include "device/Native.h"

namespace platform {

NSURL NSURL::URLWithString(const NSString& text) {
  // None is no address; the framework would raise.
  return text ? device::handle<NSURL>([::NSURL URLWithString:device::native(text)]) : NSURL();
}

}  // namespace platform
