#pragma once

#include "desktop/UIKit/ViewBody.h"
#include "platform/UIKit/NSLayoutConstraint.h"

namespace desktop {

/// One edge of a view.
class AnchorBody : public Body {
 public:
  AnchorBody(platform::UIView ofView, Edge itsEdge) : view(std::move(ofView)), edge(itsEdge) {}

  std::string_view className() const override { return "NSLayoutAnchor"; }
  std::string description() const override;

  const platform::UIView view;
  const Edge edge;
};

/// The rule that two edges lie in the same place.
class ConstraintBody : public Body {
 public:
  ConstraintBody(platform::NSLayoutAnchor one, platform::NSLayoutAnchor other)
      : first(std::move(one)), second(std::move(other)) {}

  std::string_view className() const override { return "NSLayoutConstraint"; }
  /// "UILabel.top = UIView.top"
  std::string description() const override;

  const platform::NSLayoutAnchor first;
  const platform::NSLayoutAnchor second;
};

}  // namespace desktop
