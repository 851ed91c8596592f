#pragma once

#import <UIKit/UIKit.h>
#include <memory>
#include <string_view>

#include "device/Bridge.h"
#include "platform/ObjectiveC/SEL.h"
#include "platform/UIKit/UIViewController.h"

/// What each of the bundle's controllers answers besides its messages: the C++ controller that it
/// owns (which goes after its superclasses have, since these may send messages while they go), and
/// what its superclass does, which only its own methods can ask for.
@protocol QMController <NSObject>
- (const std::shared_ptr<platform::UIViewController>&)ownedController;
- (instancetype)initAsSuperclass;
- (void)viewDidLoadAsSuperclass;
- (void)viewWillAppearAsSuperclass:(BOOL)animated;
- (void)viewDidAppearAsSuperclass:(BOOL)animated;
@end

/// The same of those that show a list.
@protocol QMListController <QMController>
- (NSArray*)specifiersAsSuperclass;
/// The list controller's own instance variable for its rows.
@property(nonatomic, retain) NSArray* ownSpecifiers;
@end

/// A property's two methods, which its controller's table of methods has.
#define QUILLMERE_PROPERTY(Type, getter, setter) \
  -(Type*)getter {                               \
    return device::call(self, _cmd);             \
  }                                              \
  -(void)setter : (Type*)value {                 \
    device::call(self, _cmd, value);             \
  }

/// A controller of the bundle, as the platform knows it: it owns a C++ controller.
typedef UIViewController<QMController>* QMOwner;

namespace device {

/// The controller that owns this one; nil when its superclass refused.
QMOwner native(const platform::UIViewController& controller);

/// The same of a table's source or a composer's delegate, which are controllers by another name.
template <class Interface>
QMOwner controllerBehind(Interface& interface) {
  return native(dynamic_cast<platform::UIViewController&>(interface));
}

/// From now on `owner` owns the controller; nil when its superclass refused.
void setOwner(platform::UIViewController& controller, QMOwner owner);

/// A new C++ controller of one of the bundle's classes, not yet initialised; null when there is no
/// such class.
std::shared_ptr<platform::UIViewController> makeController(std::string_view className);

/// The C++ controller of a controller that nobody else refers to any more; it is released with it.
/// Null for nil.
std::shared_ptr<platform::UIViewController> shared(id<QMController> owned);

/// Calls the method that the controller's table of methods has under this selector; nil when it
/// answers nothing.
id call(id<QMController> controller, ::SEL selector, id first = nil, id second = nil);

/// The selector of that name; null for none.
::SEL selector(platform::SEL name);

}  // namespace device
