#pragma once

#include <memory>
#include <span>

#include "platform/Foundation/NSString.h"
#include "platform/ObjectiveC/Method.h"
#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UINavigationController.h"
#include "platform/UIKit/UINavigationItem.h"
#include "platform/UIKit/UIView.h"

namespace platform {

/// A screen of the application. The bundle derives its pages from it; the base version of a
/// virtual function is what `super` does.
class UIViewController {
 public:
  UIViewController();
  UIViewController(const UIViewController&) = delete;
  UIViewController& operator=(const UIViewController&) = delete;
  virtual ~UIViewController();

  /// `[[Class alloc] init]` of one of the bundle's controllers; null when there is no such class
  /// or its `init` refuses.
  static std::shared_ptr<UIViewController> make(const NSString& className);

  /// Second phase of construction. False when the superclass refuses: the controller is then not
  /// used.
  virtual bool init();

  /// The view was made. The platform calls it once; the base version bears being called again.
  virtual void viewDidLoad();
  virtual void viewWillAppear(Animated animated);
  virtual void viewDidAppear(Animated animated);

  /// The methods that the platform may call by selector.
  virtual std::span<const Method> methods() const { return {}; }

 protected:
  /// The controller's view, which is made, and `viewDidLoad` called, when it is asked for first.
  UIView view();

  /// What the controller has in the navigation bar; none while `init` has not succeeded.
  UINavigationItem navigationItem() const;

  /// The stack that the controller is on; none before it is pushed.
  UINavigationController navigationController() const;

  /// Shows one of the platform's own screens (an alert, a welcome screen) over the page. Nothing
  /// happens for none.
  void presentViewController(const Object& controller, Animated animated);

  /// Takes away what is shown over the page.
  void dismissViewController(Animated animated);

 private:
  friend struct ControllerBackend;
  /// The implementation's side of the controller.
  void* backend_ = nullptr;
};

}  // namespace platform
