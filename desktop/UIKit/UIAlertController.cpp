#include "platform/UIKit/UIAlertController.h"

#include "desktop/Message.h"
#include "desktop/UIKit/AlertBody.h"

namespace platform {

using desktop::AlertActionBody;
using desktop::AlertBody;

UIAlertAction UIAlertAction::actionWithTitle(const NSString& title, UIAlertActionStyle style,
                                             std::function<void()> handler) {
  return desktop::sendClass("UIAlertAction", "actionWithTitle:style:handler:",
                            {title, static_cast<double>(style), handler ? "handler" : "nil"}, [&] {
                              return desktop::make<UIAlertAction, AlertActionBody>(
                                  title, style, std::move(handler));
                            });
}

UIAlertController UIAlertController::alertControllerWithTitle(
    const NSString& title, const NSString& message, UIAlertControllerStyle preferredStyle) {
  return desktop::sendClass("UIAlertController", "alertControllerWithTitle:message:preferredStyle:",
                            {title, message, static_cast<double>(preferredStyle)}, [&] {
                              return desktop::make<UIAlertController, AlertBody>(title, message);
                            });
}

void UIAlertController::addAction(const UIAlertAction& action) {
  desktop::send<AlertBody>(*this, "addAction:", {action},
                           [&](AlertBody& self) { self.actions.push_back(action); });
}

}  // namespace platform
