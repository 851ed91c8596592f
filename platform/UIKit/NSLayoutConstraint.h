#pragma once

#include <initializer_list>

#include "platform/Object.h"

namespace platform {

/// A rule of layout between two views.
class NSLayoutConstraint : public Object {
 public:
  /// Puts the rules into force, in this order; those that are none are left out.
  static void activateConstraints(std::initializer_list<NSLayoutConstraint> constraints);
};

/// One edge of a view.
class NSLayoutAnchor : public Object {
 public:
  /// The rule that both edges lie in the same place; none when the other edge is.
  NSLayoutConstraint constraintEqualToAnchor(const NSLayoutAnchor& anchor) const;
};

}  // namespace platform
