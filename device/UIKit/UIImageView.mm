#include "platform/UIKit/UIImageView.h"

#import <UIKit/UIKit.h>

#include "device/CoreGraphics/Geometry.h"
#include "device/Native.h"

namespace platform {

using device::adopt;
using device::native;

UIImageView UIImageView::initWithFrame(const CGRect& frame) {
  return adopt<UIImageView>([[::UIImageView alloc] initWithFrame:native(frame)]);
}

UIImageView UIImageView::initWithImage(const UIImage& image) {
  return adopt<UIImageView>([[::UIImageView alloc] initWithImage:native(image)]);
}

void UIImageView::setImage(const UIImage& image) { [native(*this) setImage:native(image)]; }

}  // namespace platform
