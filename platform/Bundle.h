#pragma once

#include <memory>
#include <span>

#include "platform/UIKit/UIViewController.h"

namespace platform {

/// One controller class of the bundle, under the name by which the platform makes it.
struct ControllerClass {
  const char* name;
  /// A new controller, not yet initialised.
  std::shared_ptr<UIViewController> (*make)();
};

/// The controllers that the bundle brings. Defined by the bundle, read by the platform: the
/// counterpart of the classes that a bundle's executable exports.
std::span<const ControllerClass> bundleClasses();

}  // namespace platform
