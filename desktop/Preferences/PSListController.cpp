#include "platform/Preferences/PSListController.h"

#include "desktop/Message.h"
#include "desktop/Preferences/ListResource.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/TableBody.h"

namespace platform {

using desktop::stateOf;

NSArray PSListController::specifiers() {
  return desktop::sendClass(stateOf(*this).className, "specifiers", {},
                            [&] { return _specifiers(); });
}

void PSListController::viewDidLoad() {
  UIViewController::viewDidLoad();
  desktop::ControllerState& state = stateOf(*this);
  if (state.table) return;  // Loading twice is harmless.
  state.table = desktop::make<UITableView, desktop::TableBody>();
  auto& table = *desktop::bodyAs<desktop::TableBody>(state.table);
  table.frame.size = desktop::Phone::screenSize;
  table.scrollDelegate = this;
}

UITableView PSListController::table() { return stateOf(*this).table; }

NSArray PSListController::loadSpecifiersFromPlistName(const NSString& name,
                                                      PSListController& target) {
  return desktop::sendClass(
      stateOf(*this).className, "loadSpecifiersFromPlistName:target:", {name, "self"}, [&] {
        desktop::ListResource resource = desktop::readListResource(name.UTF8String(), target);
        if (!resource.title.empty()) desktop::setTitle(*this, resource.title);
        return resource.specifiers;
      });
}

NSArray PSListController::_specifiers() const { return stateOf(*this).specifiers; }

void PSListController::set_specifiers(const NSArray& specifiers) {
  stateOf(*this).specifiers = specifiers;
}

}  // namespace platform
