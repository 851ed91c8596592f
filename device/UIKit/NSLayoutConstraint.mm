#include "platform/UIKit/NSLayoutConstraint.h"

#import <UIKit/UIKit.h>
#include <vector>

#include "device/Native.h"

namespace platform {

using device::handle;
using device::native;

void NSLayoutConstraint::activateConstraints(
    std::initializer_list<NSLayoutConstraint> constraints) {
  std::vector<id> rules;
  for (const NSLayoutConstraint& constraint : constraints) {
    if (constraint) rules.push_back(native(constraint));
  }
  [::NSLayoutConstraint activateConstraints:[::NSArray arrayWithObjects:rules.data()
                                                                  count:rules.size()]];
}

NSLayoutConstraint NSLayoutAnchor::constraintEqualToAnchor(const NSLayoutAnchor& anchor) const {
  if (!anchor) return {};
  return handle<NSLayoutConstraint>([native(*this) constraintEqualToAnchor:native(anchor)]);
}

}  // namespace platform
