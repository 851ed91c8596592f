#include "platform/UIKit/UILabel.h"

#import <UIKit/UIKit.h>

#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"

namespace platform {

using device::adopt;
using device::native;

static_assert(long(NSTextAlignment::Left) == ::NSTextAlignmentLeft);
static_assert(long(NSTextAlignment::Center) == ::NSTextAlignmentCenter);
static_assert(long(NSTextAlignment::Right) == ::NSTextAlignmentRight);

UILabel UILabel::initWithFrame(const CGRect& frame) {
  return adopt<UILabel>([[::UILabel alloc] initWithFrame:native(frame)]);
}

void UILabel::setFont(const UIFont& font) { [native(*this) setFont:native(font)]; }

void UILabel::setText(const NSString& text) { [native(*this) setText:native(text)]; }

void UILabel::setTextColor(const UIColor& color) { [native(*this) setTextColor:native(color)]; }

void UILabel::setTextAlignment(NSTextAlignment alignment) {
  [native(*this) setTextAlignment:static_cast<::NSTextAlignment>(alignment)];
}

}  // namespace platform
