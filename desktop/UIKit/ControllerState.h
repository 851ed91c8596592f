#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/Cephei/HBAppearanceSettings.h"
#include "platform/Foundation/NSArray.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UIViewController.h"

namespace desktop {

class NavigationController;

/// The platform's side of a controller.
struct ControllerState {
  /// The class that the controller was made as.
  std::string className;
  platform::UINavigationItem navigationItem;
  /// None until it is asked for.
  platform::UIView view;
  /// The list controller's table; none before its view was loaded.
  platform::UITableView table;
  /// The list controller's `_specifiers`.
  platform::NSArray specifiers;
  platform::HBAppearanceSettings appearance;
  /// The stack that the controller is on; null before it is pushed.
  NavigationController* navigation = nullptr;
  /// Makes the superclass's `init` answer nil.
  bool refusesInit = false;
};

/// The platform's side of this controller.
ControllerState& stateOf(const platform::UIViewController& controller);

/// The title of the controller's page; empty when it has none.
std::string titleOf(const platform::UIViewController& controller);
void setTitle(const platform::UIViewController& controller, const std::string& title);

/// The controller's view, which is loaded when it is asked for first.
platform::UIView viewOfController(platform::UIViewController& controller);

/// Whether the controller has a method of that name.
bool answers(const platform::UIViewController& controller, std::string_view selector);

/// Calls the controller's method of that name, as a message would; none when it has no such method,
/// which is reported.
platform::Object perform(platform::UIViewController& controller, std::string_view selector,
                         const platform::Object& first, const platform::Object& second = {});

/// A new controller of one of the bundle's classes, not yet initialised; null when there is no
/// such class.
std::shared_ptr<platform::UIViewController> makeController(const std::string& className);

}  // namespace desktop
