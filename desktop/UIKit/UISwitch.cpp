#include "platform/UIKit/UISwitch.h"

#include "desktop/Message.h"
#include "desktop/UIKit/ControllerState.h"
#include "desktop/UIKit/SwitchBody.h"

namespace desktop {

using platform::UIControlEvents;

namespace {

/// Switches have one size, in points.
constexpr platform::CGSize switchSize{51, 31};

}  // namespace

SwitchBody::SwitchBody() { frame.size = switchSize; }

void SwitchBody::toggle(bool position, bool inside) {
  retain();  // An action may take the switch off the screen.
  const auto self = platform::Backend::adopt<platform::UISwitch>(static_cast<Body*>(this));
  const bool changed = std::exchange(on, position) != position;
  if (changed) report(UIControlEvents::ValueChanged);
  if (inside) report(UIControlEvents::TouchUpInside);
}

void SwitchBody::report(UIControlEvents event) {
  // A copy: an action may add targets.
  for (const ControlTarget& target : std::vector(targets)) {
    if (target.events == event) perform(*target.controller, target.action, {});
  }
}

}  // namespace desktop

namespace platform {

using desktop::send;
using desktop::SwitchBody;

void UIControl::addTarget(UIViewController& target, SEL action, UIControlEvents events) {
  send<SwitchBody>(*this, "addTarget:action:forControlEvents:",
                   {std::string_view(desktop::stateOf(target).className), action.name,
                    static_cast<double>(events)},
                   [&](SwitchBody& self) {
                     self.targets.push_back({&target, std::string(action.name), events});
                   });
}

UISwitch UISwitch::init() {
  return desktop::sendClass("UISwitch", "init", {},
                            [] { return desktop::make<UISwitch, SwitchBody>(); });
}

bool UISwitch::isOn() const {
  return send<SwitchBody>(*this, "isOn", {}, [](SwitchBody& self) { return self.on; });
}

void UISwitch::setOn(bool on, Animated animated) {
  send<SwitchBody>(*this, "setOn:animated:", {on, animated == Animated::Yes},
                   [&](SwitchBody& self) { self.on = on; });
}

void UISwitch::setOnTintColor(const UIColor& color) {
  send<SwitchBody>(*this, "setOnTintColor:", {color},
                   [&](SwitchBody& self) { self.onTint = color; });
}

}  // namespace platform
