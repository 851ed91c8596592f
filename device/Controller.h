#pragma once

#import <UIKit/UIKit.h>

#include <memory>

#include "device/Bridge.h"
#include "platform/ObjectiveC/SEL.h"
#include "platform/UIKit/UIViewController.h"

/// What each of the bundle's controllers answers besides its messages: the C++ controller that it
/// owns, and what its superclass does, which only its own methods can ask for.
@protocol QMController <NSObject>
- (const std::shared_ptr<platform::UIViewController> &)controller;
- (instancetype)initAsSuperclass;
- (void)viewDidLoadAsSuperclass;
- (void)viewWillAppearAsSuperclass:(BOOL)animated;
- (void)viewDidAppearAsSuperclass:(BOOL)animated;
@end

/// The same of those that show a list.
@protocol QMListController <QMController>
- (NSArray *)specifiersAsSuperclass;
/// The list controller's own instance variable for its rows.
@property(nonatomic, retain) NSArray *ownSpecifiers;
@end

namespace device {

/// The controller that owns this one; nil when its superclass refused.
::UIViewController<QMController>* native(const platform::UIViewController& controller);

/// The same of a table's source or a composer's delegate, which are controllers by another name.
template <class Interface>
::UIViewController<QMController>* controllerBehind(Interface& interface) {
  return native(dynamic_cast<platform::UIViewController&>(interface));
}

/// A new C++ controller for `owner`, one of the bundle's, by its class's name. Not yet initialised.
std::shared_ptr<platform::UIViewController> makeController(::UIViewController<QMController>* owner);

/// The C++ controller of a controller that nobody else refers to any more; it is released with it.
/// Null for nil.
std::shared_ptr<platform::UIViewController> shared(id<QMController> owned);

/// Calls the method that the controller's table has under this selector. What the selector does not
/// take is ignored.
id call(id<QMController> controller, ::SEL selector, id first = nil, id second = nil);

/// The selector of that name; null for none.
::SEL selector(platform::SEL name);

}  // namespace device
