#include "platform/Cephei/HBRespringController.h"

#import <Cephei/HBRespringController.h>

#include "device/Native.h"

namespace platform {

void HBRespringController::respringAndReturnTo(const NSURL& url) {
  [::HBRespringController respringAndReturnTo:device::native(url)];
}

}  // namespace platform
