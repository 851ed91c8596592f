#include "platform/UIKit/UIImage.h"

#include <system_error>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/CoreGraphics/Png.h"
#include "desktop/Message.h"
#include "desktop/UIKit/ContextBody.h"
#include "desktop/UIKit/ImageBody.h"

namespace platform {

using desktop::Argument;
using desktop::ImageBody;
using desktop::send;

namespace {

desktop::Surface surfaceAt(const std::string& path) {
  try {
    const auto bytes = desktop::Phone::current().folder.read(path);
    return bytes ? desktop::readPng(*bytes) : nullptr;
  } catch (const std::system_error&) {
    return nullptr;  // What cannot be read is no picture.
  }
}

/// Pixels to a point, as the file's name has it.
double scaleNamedBy(std::string_view path) {
  const std::string_view name = path.substr(path.rfind('/') + 1);
  const std::string_view stem = name.substr(0, name.rfind('.'));
  if (stem.ends_with("@2x")) return 2;
  if (stem.ends_with("@3x")) return 3;
  return 1;
}

}  // namespace

UIImage UIImage::imageWithContentsOfFile(const NSString& path) {
  return desktop::sendClass("UIImage", "imageWithContentsOfFile:", {path}, [&] {
    const std::string file = path.UTF8String();
    desktop::Surface surface = surfaceAt(file);
    if (!surface) return UIImage();
    return desktop::make<UIImage, ImageBody>(std::move(surface), scaleNamedBy(file));
  });
}

UIImage UIImage::imageWithRenderingMode(UIImageRenderingMode mode) const {
  return send<ImageBody>(*this, "imageWithRenderingMode:", {static_cast<double>(mode)},
                         [&](const ImageBody& self) { return self.inMode(mode); });
}

void UIImage::drawInRect(const CGRect& rect) const {
  send<ImageBody>(*this, "drawInRect:", {Argument(desktop::text(rect))},
                  [&](const ImageBody& self) {
                    cairo_t* context = desktop::currentContext();
                    if (context) desktop::drawStretched(*context, self.pixels(), rect);
                  });
}

}  // namespace platform
