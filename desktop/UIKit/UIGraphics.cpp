#include "platform/UIKit/UIGraphics.h"

#include <cmath>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/Message.h"
#include "desktop/UIKit/ContextBody.h"
#include "desktop/UIKit/ImageBody.h"

namespace desktop {

namespace {

/// Null for what has no pixels, or too many.
Surface surfaceOf(const platform::CGSize& size, double scale) {
  const double width = std::ceil(size.width * scale);
  const double height = std::ceil(size.height * scale);
  // Written so that what is no number fails.
  if (!(width >= 1 && height >= 1 && width * height <= maximumPixels)) return nullptr;
  return makeSurface(static_cast<int>(width), static_cast<int>(height));
}

}  // namespace

ContextBody::ContextBody(const platform::CGSize& size, platform::Opaque opaque,
                         double pixelsToAPoint)
    : scale_(pixelsToAPoint), pixels_(surfaceOf(size, pixelsToAPoint)) {
  if (!pixels_) return;
  cairo_.reset(cairo_create(pixels_.get()));
  if (opaque == platform::Opaque::Yes) cairo_paint(cairo_.get());
  cairo_scale(cairo_.get(), scale_, scale_);
}

platform::UIImage ContextBody::picture() const {
  Surface copy = pixels_ ? copyOf(*pixels_) : nullptr;
  return copy ? make<platform::UIImage, ImageBody>(std::move(copy), scale_) : platform::UIImage();
}

cairo_t* currentContext() {
  const auto& contexts = Phone::current().contexts;
  return contexts.empty() ? nullptr : bodyAs<ContextBody>(contexts.back())->cairo();
}

}  // namespace desktop

namespace platform {

using desktop::Argument;
using desktop::ContextBody;
using desktop::Phone;
using desktop::sendClass;

void UIGraphicsBeginImageContextWithOptions(const CGSize& size, Opaque opaque, double scale) {
  sendClass("UIGraphics", "beginImageContextWithOptions:opaque:scale:",
            {Argument(desktop::text(size)), opaque == Opaque::Yes, scale}, [&] {
              const double pixels = scale == 0 ? Phone::current().screenScale : scale;
              Phone::current().contexts.push_back(
                  desktop::make<CGContext, ContextBody>(size, opaque, pixels));
            });
}

CGContext UIGraphicsGetCurrentContext() {
  return sendClass("UIGraphics", "getCurrentContext", {}, [] {
    const auto& contexts = Phone::current().contexts;
    return contexts.empty() ? CGContext() : contexts.back();
  });
}

UIImage UIGraphicsGetImageFromCurrentImageContext() {
  return sendClass("UIGraphics", "getImageFromCurrentImageContext", {}, [] {
    const auto& contexts = Phone::current().contexts;
    if (contexts.empty()) return UIImage();
    return desktop::bodyAs<ContextBody>(contexts.back())->picture();
  });
}

void UIGraphicsEndImageContext() {
  sendClass("UIGraphics", "endImageContext", {}, [] {
    auto& contexts = Phone::current().contexts;
    if (!contexts.empty()) contexts.pop_back();
  });
}

}  // namespace platform
