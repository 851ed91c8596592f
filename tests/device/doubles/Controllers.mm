#import <CepheiPrefs/HBRootListController.h>
#import <CepheiPrefs/PSListController+HBTintAdditions.h>
#import <UIKit/UIKit.h>

#include "platform/Preferences/PSSpecifier.h"
#include "tests/device/doubles/Bridge.h"
#include "tests/device/doubles/Double.h"

using doubles::bridgeOf;
using doubles::handle;
using doubles::listBridgeOf;
using doubles::object;
using platform::Animated;

@implementation UIResponder
#include "tests/device/doubles/Dealloc.inc"
@end

@implementation UIViewController

- (instancetype)init {
  if (bridgeOf(self).superInit()) return self;
  [self release];
  return nil;
}

- (void)dealloc {
  doubles::forgetBridge(self);
  [super dealloc];
}

- (UIView*)view {
  return object(bridgeOf(self).view());
}
- (UINavigationItem*)navigationItem {
  return object(bridgeOf(self).navigationItem());
}
- (UINavigationController*)navigationController {
  return object(bridgeOf(self).navigationController());
}
- (void)viewDidLoad {
  bridgeOf(self).superViewDidLoad();
}
- (void)viewWillAppear:(BOOL)animated {
  bridgeOf(self).superViewWillAppear(Animated(bool(animated)));
}
- (void)viewDidAppear:(BOOL)animated {
  bridgeOf(self).superViewDidAppear(Animated(bool(animated)));
}

- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
  NSAssert(!completion, @"the stand-in says nothing when a screen is there");
  bridgeOf(self).present(handle(controller), Animated(bool(animated)));
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
  NSAssert(!completion, @"the stand-in says nothing when a screen is gone");
  bridgeOf(self).dismiss(Animated(bool(animated)));
}

@end

@implementation UINavigationController

- (void)pushViewController:(UIViewController*)controller animated:(BOOL)animated {
  auto pushed = controller ? doubles::shared(controller) : nullptr;
  handle<platform::UINavigationController>(self).pushViewController(std::move(pushed),
                                                                    Animated(bool(animated)));
}

- (void)presentViewController:(UIViewController*)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
  NSAssert(!completion, @"the stand-in says nothing when a screen is there");
  handle<platform::UINavigationController>(self).presentViewController(handle(controller),
                                                                       Animated(bool(animated)));
}

@end

@implementation UINavigationItem

#include "tests/device/doubles/Dealloc.inc"

static platform::UINavigationItem own(UINavigationItem* self) {
  return handle<platform::UINavigationItem>(self);
}

- (NSString*)title {
  return object(own(self).title());
}
- (void)setTitle:(NSString*)title {
  own(self).setTitle(handle<platform::NSString>(title));
}
- (UIView*)titleView {
  return object(own(self).titleView());
}
- (void)setTitleView:(UIView*)view {
  own(self).setTitleView(handle<platform::UIView>(view));
}
- (void)setRightBarButtonItem:(UIBarButtonItem*)item {
  own(self).setRightBarButtonItem(handle<platform::UIBarButtonItem>(item));
}

@end

@implementation PSViewController
@end

@implementation PSListController

- (UITableView*)table {
  return object(listBridgeOf(self).table());
}
- (void)setTable:(UITableView*)table {
  [self doesNotRecognizeSelector:_cmd];
  (void)table;
}

- (NSMutableArray*)specifiers {
  listBridgeOf(self).superSpecifiers();
  return _specifiers;
}

- (NSMutableArray*)loadSpecifiersFromPlistName:(NSString*)name target:(PSListController*)target {
  return object(
      listBridgeOf(self).load(handle<platform::NSString>(name), listBridgeOf(target).list()));
}

- (void)hb_setAppearanceSettings:(HBAppearanceSettings*)settings {
  listBridgeOf(self).setAppearance(handle<platform::HBAppearanceSettings>(settings));
}

- (void)dealloc {
  // A superclass may ask the class that derives from it until the very end.
  if (_specifiers) [self specifiers];
  [_specifiers release];
  [super dealloc];
}

@end

@implementation HBListController
@end

@implementation HBRootListController
@end
