#include "platform/Cephei/HBRespringController.h"

#include "desktop/Message.h"

namespace platform {

void HBRespringController::respringAndReturnTo(const NSURL& url) {
  desktop::sendClass("HBRespringController", "respringAndReturnTo:", {url}, [&] {
    desktop::Phone::current().springBoard.respringAndReturnTo(desktop::description(url));
  });
}

}  // namespace platform
