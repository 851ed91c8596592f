#pragma once

#include <functional>
#include <vector>

#include "desktop/Body.h"
#include "platform/UIKit/UIAlertController.h"

namespace desktop {

class AlertActionBody : public Body {
 public:
  AlertActionBody(platform::NSString givenTitle, platform::UIAlertActionStyle givenStyle,
                  std::function<void()> givenHandler)
      : title(std::move(givenTitle)), style(givenStyle), handler(std::move(givenHandler)) {}

  std::string_view className() const override { return "UIAlertAction"; }
  std::string description() const override { return "<UIAlertAction " + title.UTF8String() + ">"; }

  const platform::NSString title;
  const platform::UIAlertActionStyle style;
  const std::function<void()> handler;
};

class AlertBody : public Body {
 public:
  AlertBody(platform::NSString givenTitle, platform::NSString givenMessage)
      : title(std::move(givenTitle)), message(std::move(givenMessage)) {}

  std::string_view className() const override { return "UIAlertController"; }

  const platform::NSString title;
  const platform::NSString message;
  std::vector<platform::UIAlertAction> actions;
};

}  // namespace desktop
