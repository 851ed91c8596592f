#include "platform/UIKit/NSLayoutConstraint.h"

#import <UIKit/UIKit.h>

#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

void NSLayoutConstraint::activateConstraints(
    std::initializer_list<NSLayoutConstraint> constraints) {
  ::NSMutableArray* rules = [::NSMutableArray array];
  for (const NSLayoutConstraint& constraint : constraints) {
    if (constraint) [rules addObject:native(constraint)];
  }
  [::NSLayoutConstraint activateConstraints:rules];
}

NSLayoutConstraint NSLayoutAnchor::constraintEqualToAnchor(const NSLayoutAnchor& anchor) const {
  if (!anchor) return {};
  return handle<NSLayoutConstraint>([native(*this) constraintEqualToAnchor:native(anchor)]);
}

}  // namespace platform
