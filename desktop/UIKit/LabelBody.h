#pragma once

#include "desktop/UIKit/ViewBody.h"
#include "platform/UIKit/UILabel.h"

namespace desktop {

/// The system's bold font of a size.
class FontBody : public Body {
 public:
  explicit FontBody(double points) : size(points) {}

  std::string_view className() const override { return "UIFont"; }
  std::string description() const override { return "bold " + std::to_string(size); }

  const double size;
};

class LabelBody : public ViewBody {
 public:
  std::string_view className() const override { return "UILabel"; }

  platform::NSString text;
  platform::UIFont font;
  platform::UIColor textColor;
  platform::NSTextAlignment alignment = platform::NSTextAlignment::Left;
};

}  // namespace desktop
