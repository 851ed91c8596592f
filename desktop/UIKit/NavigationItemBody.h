#pragma once

#include "desktop/Body.h"
#include "platform/UIKit/UINavigationItem.h"

namespace desktop {

class BarButtonItemBody : public Body {
 public:
  explicit BarButtonItemBody(platform::UIView view) : customView(std::move(view)) {}

  std::string_view className() const override { return "UIBarButtonItem"; }

  const platform::UIView customView;
  platform::NSString title;
};

class NavigationItemBody : public Body {
 public:
  std::string_view className() const override { return "UINavigationItem"; }

  platform::NSString title;
  platform::UIView titleView;
  platform::UIBarButtonItem rightItem;
};

}  // namespace desktop
