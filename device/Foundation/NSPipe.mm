#include "device/Native.h"
#include "platform/Foundation/NSTask.h"

namespace platform {

using device::handle;
using device::native;

NSPipe NSPipe::pipe() { return handle<NSPipe>([::NSPipe pipe]); }

NSFileHandle NSPipe::fileHandleForReading() const {
  return handle<NSFileHandle>([native(*this) fileHandleForReading]);
}

NSData NSFileHandle::readDataToEndOfFile() const {
  return handle<NSData>([native(*this) readDataToEndOfFile]);
}

}  // namespace platform
