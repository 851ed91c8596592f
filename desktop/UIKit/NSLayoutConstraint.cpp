#include "platform/UIKit/NSLayoutConstraint.h"

#include "desktop/Message.h"
#include "desktop/UIKit/AnchorBody.h"

namespace desktop {

std::string AnchorBody::description() const {
  return std::string(viewOf(view)->className()) + '.' + std::string(nameOf(edge));
}

std::string ConstraintBody::description() const {
  return desktop::description(first) + " = " + desktop::description(second);
}

}  // namespace desktop

namespace platform {

using desktop::AnchorBody;
using desktop::ConstraintBody;

NSLayoutConstraint NSLayoutAnchor::constraintEqualToAnchor(const NSLayoutAnchor& anchor) const {
  if (!anchor) return {};
  return desktop::send<AnchorBody>(*this, "constraintEqualToAnchor:", {anchor}, [&](AnchorBody&) {
    return desktop::make<NSLayoutConstraint, ConstraintBody>(*this, anchor);
  });
}

void NSLayoutConstraint::activateConstraints(
    std::initializer_list<NSLayoutConstraint> constraints) {
  std::string list;
  for (const NSLayoutConstraint& constraint : constraints) {
    if (constraint) list += (list.empty() ? "" : ", ") + desktop::description(constraint);
  }
  // Noted, and not solved: the page lays the views out, by rules of its own.
  desktop::sendClass("NSLayoutConstraint", "activateConstraints:", {std::string_view(list)}, [] {});
}

}  // namespace platform
