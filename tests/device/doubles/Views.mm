#import <UIKit/UIKit.h>

#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/UIKit/UIVisualEffectView.h"
#include "tests/device/doubles/Bridge.h"
#include "tests/device/doubles/Double.h"
#include "tests/device/doubles/Geometry.h"

using doubles::handle;
using doubles::initialised;
using doubles::object;
using doubles::rect;
using platform::Animated;

@implementation UIView

static platform::UIView own(UIView* self) { return handle<platform::UIView>(self); }

- (instancetype)init {
  return initialised(self, platform::UIView::init());
}

- (CGRect)frame {
  return rect(own(self).frame());
}
- (void)setFrame:(CGRect)frame {
  own(self).setFrame(rect(frame));
}
- (CGRect)bounds {
  return rect(own(self).bounds());
}
- (CALayer*)layer {
  return object(own(self).layer());
}
- (void)setAlpha:(CGFloat)alpha {
  own(self).setAlpha(alpha);
}
- (void)setBackgroundColor:(UIColor*)color {
  own(self).setBackgroundColor(handle<platform::UIColor>(color));
}
- (void)setClipsToBounds:(BOOL)clips {
  own(self).setClipsToBounds(clips);
}
- (void)setContentMode:(UIViewContentMode)mode {
  own(self).setContentMode(platform::UIViewContentMode(mode));
}
- (void)setAutoresizingMask:(UIViewAutoresizing)mask {
  own(self).setAutoresizingMask(platform::UIViewAutoresizing(mask));
}
- (void)setTintColor:(UIColor*)color {
  own(self).setTintColor(handle<platform::UIColor>(color));
}
- (void)setTranslatesAutoresizingMaskIntoConstraints:(BOOL)translates {
  own(self).setTranslatesAutoresizingMaskIntoConstraints(translates);
}

- (NSLayoutYAxisAnchor*)topAnchor {
  return object(own(self).topAnchor());
}
- (NSLayoutXAxisAnchor*)leadingAnchor {
  return object(own(self).leadingAnchor());
}
- (NSLayoutXAxisAnchor*)trailingAnchor {
  return object(own(self).trailingAnchor());
}
- (NSLayoutYAxisAnchor*)bottomAnchor {
  return object(own(self).bottomAnchor());
}

- (void)addSubview:(UIView*)view {
  own(self).addSubview(own(view));
}

+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations {
  platform::UIView::animateWithDuration(duration, [=] { animations(); });
}

+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
  std::function<void(bool)> then;
  if (completion) {
    then = [kept = doubles::keep(completion)](bool finished) {
      ((void (^)(BOOL))kept.get())(finished);
    };
  }
  platform::UIView::animateWithDuration(
      duration, delay, platform::UIViewAnimationOptions(options), [=] { animations(); }, then);
}

@end

@implementation UILabel

static platform::UILabel own(UILabel* self) { return handle<platform::UILabel>(self); }

- (instancetype)initWithFrame:(CGRect)frame {
  return initialised(self, platform::UILabel::initWithFrame(rect(frame)));
}
- (void)setText:(NSString*)text {
  own(self).setText(handle<platform::NSString>(text));
}
- (void)setFont:(UIFont*)font {
  own(self).setFont(handle<platform::UIFont>(font));
}
- (void)setTextColor:(UIColor*)color {
  own(self).setTextColor(handle<platform::UIColor>(color));
}
- (void)setTextAlignment:(NSTextAlignment)alignment {
  own(self).setTextAlignment(platform::NSTextAlignment(alignment));
}

@end

@implementation UIImageView

- (instancetype)initWithFrame:(CGRect)frame {
  return initialised(self, platform::UIImageView::initWithFrame(rect(frame)));
}
- (instancetype)initWithImage:(UIImage*)image {
  return initialised(self, platform::UIImageView::initWithImage(handle<platform::UIImage>(image)));
}
- (void)setImage:(UIImage*)image {
  handle<platform::UIImageView>(self).setImage(handle<platform::UIImage>(image));
}

@end

@implementation UIControl

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
  handle<platform::UIControl>(self).addTarget(doubles::bridgeOf(target).controller(),
                                              sel_getName(action),
                                              platform::UIControlEvents(events));
}

@end

@implementation UISwitch

static platform::UISwitch own(UISwitch* self) { return handle<platform::UISwitch>(self); }

- (instancetype)init {
  return initialised(self, platform::UISwitch::init());
}
- (BOOL)isOn {
  return own(self).isOn();
}
- (void)setOn:(BOOL)on animated:(BOOL)animated {
  own(self).setOn(on, Animated(bool(animated)));
}
- (void)setOnTintColor:(UIColor*)color {
  own(self).setOnTintColor(handle<platform::UIColor>(color));
}

@end

@implementation UIVisualEffect
#include "tests/device/doubles/Dealloc.inc"
@end

@implementation UIBlurEffect
+ (UIBlurEffect*)effectWithStyle:(UIBlurEffectStyle)style {
  return object(platform::UIBlurEffect::effectWithStyle(platform::UIBlurEffectStyle(style)));
}
@end

@implementation UIVisualEffectView
- (instancetype)initWithEffect:(UIVisualEffect*)effect {
  return initialised(
      self, platform::UIVisualEffectView::initWithEffect(handle<platform::UIBlurEffect>(effect)));
}
@end
