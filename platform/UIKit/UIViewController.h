#pragma once

#include <span>

#include "platform/ObjectiveC/Method.h"

namespace platform {

/// A screen of the application. The bundle derives its pages from it; the base version of a
/// virtual function is what `super` does.
class UIViewController {
 public:
  UIViewController();
  UIViewController(const UIViewController&) = delete;
  UIViewController& operator=(const UIViewController&) = delete;
  virtual ~UIViewController();

  /// Second phase of construction. False when the superclass refuses: the controller is then not
  /// used.
  virtual bool init();

  /// The methods that the platform may call by selector.
  virtual std::span<const Method> methods() const { return {}; }

 private:
  friend struct ControllerBackend;
  /// The implementation's side of the controller.
  void* backend_ = nullptr;
};

}  // namespace platform
