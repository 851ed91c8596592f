#pragma once

#include <utility>

#include "desktop/UIKit/ViewBody.h"

namespace desktop {

/// What draws a view; it has no state but the view's.
class LayerBody : public Body {
 public:
  /// `of` must be a view.
  explicit LayerBody(platform::UIView of) : view_(std::move(of)) {}

  std::string_view className() const override { return "CALayer"; }

  ViewBody& view() const { return *viewOf(view_); }

 private:
  platform::UIView view_;
};

}  // namespace desktop
