#include "platform/Preferences/PSListController.h"

#import <Preferences/PSListController.h>

#include "device/Controller.h"
#include "device/Native.h"

typedef PSListController<QMListController>* QMListOwner;

namespace platform {

using device::handle;
using device::native;

namespace {

QMListOwner list(const PSListController& controller) { return (QMListOwner)native(controller); }

}  // namespace

NSArray PSListController::specifiers() {
  return handle<NSArray>([list(*this) specifiersAsSuperclass]);
}

void PSListController::viewDidLoad() { UIViewController::viewDidLoad(); }

UITableView PSListController::table() { return handle<UITableView>([list(*this) table]); }

NSArray PSListController::loadSpecifiersFromPlistName(const NSString& name,
                                                      PSListController& target) {
  return handle<NSArray>([list(*this) loadSpecifiersFromPlistName:native(name)
                                                           target:list(target)]);
}

NSArray PSListController::_specifiers() const {
  return handle<NSArray>([list(*this) ownSpecifiers]);
}

void PSListController::set_specifiers(const NSArray& specifiers) {
  [list(*this) setOwnSpecifiers:native(specifiers)];
}

}  // namespace platform
