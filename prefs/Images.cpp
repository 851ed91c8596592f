#include "prefs/Images.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImageView.h"

namespace quillmere {

using namespace platform;

UIImage rescaleImage(const UIImage& picture, CGSize newSize) {
  UIGraphicsBeginImageContextWithOptions(newSize, Opaque::No, 0.0);
  picture.drawInRect(CGRectMake(0, 0, newSize.width, newSize.height));
  const UIImage rescaled = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return rescaled;
}

UIImage imageWithTint(const UIImage& picture, const UIColor& color) {
  const UIImage shape = picture.imageWithRenderingMode(UIImageRenderingMode::AlwaysTemplate);
  UIImageView view = UIImageView::initWithImage(shape);
  view.setTintColor(color);
  UIGraphicsBeginImageContextWithOptions(view.bounds().size, Opaque::No, 0.0);
  view.layer().renderInContext(UIGraphicsGetCurrentContext());
  const UIImage tinted = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return tinted;
}

}  // namespace quillmere
