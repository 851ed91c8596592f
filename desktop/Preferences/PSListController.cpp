#include "platform/Preferences/PSListController.h"

#include "desktop/Message.h"
#include "desktop/Preferences/ListResource.h"
#include "desktop/UIKit/ControllerState.h"

namespace platform {

NSArray PSListController::specifiers() {
  return desktop::sendClass(desktop::stateOf(*this).className, "specifiers", {},
                            [&] { return _specifiers(); });
}

NSArray PSListController::loadSpecifiersFromPlistName(const NSString& name,
                                                      PSListController& target) {
  desktop::ControllerState& state = desktop::stateOf(*this);
  return desktop::sendClass(
      state.className, "loadSpecifiersFromPlistName:target:", {name, "self"}, [&] {
        desktop::ListResource resource = desktop::readListResource(name.UTF8String(), target);
        if (!resource.title.empty()) state.title = resource.title;
        return resource.specifiers;
      });
}

NSArray PSListController::_specifiers() const { return desktop::stateOf(*this).specifiers; }

void PSListController::set_specifiers(const NSArray& specifiers) {
  desktop::stateOf(*this).specifiers = specifiers;
}

}  // namespace platform
