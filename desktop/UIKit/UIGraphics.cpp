#include "platform/UIKit/UIGraphics.h"

#include <cmath>
#include <memory>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/Message.h"
#include "desktop/UIKit/ContextBody.h"
#include "desktop/UIKit/ImageBody.h"

namespace desktop {

Surface ContextBody::Sheet::drawn() const {
  Surface surface = makeSurface(width, height);
  if (!surface) return nullptr;
  const Context context(cairo_create(surface.get()));
  cairo_scale(context.get(), scale, scale);
  for (const Drawing& each : drawings) each(*context);
  boundColors(*surface);
  return surface;
}

ContextBody::ContextBody(const platform::CGSize& size, platform::Opaque opaque,
                         double pixelsToAPoint) {
  const double width = std::ceil(size.width * pixelsToAPoint);
  const double height = std::ceil(size.height * pixelsToAPoint);
  if (!isBearable(width, height)) return;
  sheet_ = {static_cast<int>(width), static_cast<int>(height), pixelsToAPoint, {}};
  if (opaque == platform::Opaque::Yes) draw([](cairo_t& context) { cairo_paint(&context); });
}

void ContextBody::draw(Drawing drawing) {
  if (!sheet_.isEmpty()) sheet_.drawings.push_back(std::move(drawing));
}

void ContextBody::drawNow(const Drawing& drawing) {
  if (sheet_.isEmpty()) return;
  const auto layer = std::make_shared<const Raster>(
      Sheet{sheet_.width, sheet_.height, sheet_.scale, {drawing}}.drawn());
  draw([layer](cairo_t& context) {
    const SavedState state(context);
    cairo_identity_matrix(&context);
    cairo_set_source_surface(&context, &layer->surface(), 0, 0);
    cairo_paint(&context);
  });
}

platform::UIImage ContextBody::picture() const {
  if (sheet_.isEmpty()) return {};
  auto raster = std::make_shared<const Raster>(sheet_.width, sheet_.height,
                                               [sheet = sheet_] { return sheet.drawn(); });
  return make<platform::UIImage, ImageBody>(std::move(raster), sheet_.scale);
}

ContextBody* currentContext() {
  const auto& contexts = Phone::current().contexts;
  return contexts.empty() ? nullptr : bodyAs<ContextBody>(contexts.back());
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
