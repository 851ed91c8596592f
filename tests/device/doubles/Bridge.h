#pragma once

#import <UIKit/UIKit.h>
#include <memory>
#include <vector>

#include "platform/Cephei/HBRootListController.h"
#include "platform/UIKit/UIViewController.h"

namespace doubles {

/// The stand-in's side of one of the bundle's controllers: what the stand-in asks of it goes to the
/// Objective-C object as messages, and what that sends to `super` comes back here.
class Bridge {
 public:
  virtual ~Bridge() = default;

  virtual platform::UIViewController& controller() = 0;

  /// @name What the superclass does
  /// @{
  virtual bool superInit() = 0;
  virtual void superViewDidLoad() = 0;
  virtual void superViewWillAppear(platform::Animated animated) = 0;
  virtual void superViewDidAppear(platform::Animated animated) = 0;
  /// @}

  /// @name What it has
  /// @{
  virtual platform::UIView view() = 0;
  virtual platform::UINavigationItem navigationItem() const = 0;
  virtual platform::UINavigationController navigationController() const = 0;
  virtual void present(const platform::Object& shown, platform::Animated animated) = 0;
  virtual void dismiss(platform::Animated animated) = 0;
  /// @}
};

/// The same of a page with rows.
class ListBridge {
 public:
  virtual ~ListBridge() = default;
  virtual platform::PSListController& list() = 0;
  virtual void superSpecifiers() = 0;
  virtual platform::UITableView table() = 0;
  virtual platform::NSArray load(const platform::NSString& name,
                                 platform::PSListController& target) = 0;
  virtual void setAppearance(const platform::HBAppearanceSettings& settings) = 0;
};

/// The bridge of a controller; made when it is asked for first, and gone with the controller.
Bridge& bridgeOf(UIViewController* controller);
ListBridge& listBridgeOf(UIViewController* controller);
void forgetBridge(UIViewController* controller);

/// The stand-in's controller, which keeps the Objective-C one alive.
std::shared_ptr<platform::UIViewController> shared(UIViewController* controller);

}  // namespace doubles
