#include "platform/UIKit/UIView.h"

#import <UIKit/UIKit.h>

#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"

namespace platform {

using device::adopt;
using device::handle;
using device::native;
using device::projected;

static_assert(long(UIViewContentMode::ScaleToFill) == ::UIViewContentModeScaleToFill);
static_assert(long(UIViewContentMode::ScaleAspectFit) == ::UIViewContentModeScaleAspectFit);
static_assert(long(UIViewContentMode::Center) == ::UIViewContentModeCenter);
static_assert(static_cast<::UIViewAutoresizing>(UIViewAutoresizing::None) ==
              ::UIViewAutoresizingNone);
static_assert(static_cast<::UIViewAutoresizing>(UIViewAutoresizing::FlexibleWidth) ==
              ::UIViewAutoresizingFlexibleWidth);
static_assert(static_cast<::UIViewAnimationOptions>(UIViewAnimationOptions::CurveEaseInOut) ==
              ::UIViewAnimationOptionCurveEaseInOut);
static_assert(static_cast<::UIViewAnimationOptions>(UIViewAnimationOptions::CurveEaseOut) ==
              ::UIViewAnimationOptionCurveEaseOut);

UIView UIView::init() { return adopt<UIView>([::UIView new]); }

CGRect UIView::frame() const { return projected([native(*this) frame]); }

void UIView::setFrame(const CGRect& frame) { [native(*this) setFrame:native(frame)]; }

CGRect UIView::bounds() const { return projected([native(*this) bounds]); }

CALayer UIView::layer() const { return handle<CALayer>([native(*this) layer]); }

void UIView::setAlpha(double alpha) { [native(*this) setAlpha:alpha]; }

void UIView::setBackgroundColor(const UIColor& color) {
  [native(*this) setBackgroundColor:native(color)];
}

void UIView::setClipsToBounds(bool clips) { [native(*this) setClipsToBounds:clips]; }

void UIView::setContentMode(UIViewContentMode mode) {
  [native(*this) setContentMode:static_cast<::UIViewContentMode>(mode)];
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask) {
  [native(*this) setAutoresizingMask:static_cast<::UIViewAutoresizing>(mask)];
}

void UIView::setTintColor(const UIColor& color) { [native(*this) setTintColor:native(color)]; }

void UIView::setTranslatesAutoresizingMaskIntoConstraints(bool translates) {
  [native(*this) setTranslatesAutoresizingMaskIntoConstraints:translates];
}

NSLayoutAnchor UIView::topAnchor() const {
  return handle<NSLayoutAnchor>([native(*this) topAnchor]);
}

NSLayoutAnchor UIView::leadingAnchor() const {
  return handle<NSLayoutAnchor>([native(*this) leadingAnchor]);
}

NSLayoutAnchor UIView::trailingAnchor() const {
  return handle<NSLayoutAnchor>([native(*this) trailingAnchor]);
}

NSLayoutAnchor UIView::bottomAnchor() const {
  return handle<NSLayoutAnchor>([native(*this) bottomAnchor]);
}

void UIView::addSubview(const UIView& view) { [native(*this) addSubview:native(view)]; }

// The blocks refer to `animations` where it is: they have run before these functions return.

void UIView::animateWithDuration(double duration, const std::function<void()>& animations) {
  [::UIView animateWithDuration:duration
                     animations:^{
                       if (animations) animations();
                     }];
}

void UIView::animateWithDuration(double duration, double delay, UIViewAnimationOptions options,
                                 const std::function<void()>& animations,
                                 std::function<void(bool finished)> completion) {
  using Completion = void (^)(BOOL);
  [::UIView animateWithDuration:duration
      delay:delay
      options:static_cast<::UIViewAnimationOptions>(options)
      animations:^{
        if (animations) animations();
      }
      completion:completion ? ^(BOOL finished) { completion(finished); } : Completion()];
}

}  // namespace platform
