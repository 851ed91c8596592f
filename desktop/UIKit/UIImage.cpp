#include "platform/UIKit/UIImage.h"

#include <memory>
#include <optional>
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
using desktop::Raster;
using desktop::send;

namespace {

/// Null for what is no picture.
std::shared_ptr<const Raster> rasterAt(const std::string& path) {
  try {
    auto bytes = desktop::Phone::current().folder.read(path);
    const auto size = bytes ? desktop::sizeOfPng(*bytes) : std::nullopt;
    if (!size) return nullptr;
    return std::make_shared<const Raster>(
        size->width, size->height, [bytes = *std::move(bytes)] { return desktop::readPng(bytes); });
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
    auto raster = rasterAt(file);
    if (!raster) return UIImage();
    return desktop::make<UIImage, ImageBody>(std::move(raster), scaleNamedBy(file));
  });
}

UIImage UIImage::imageWithRenderingMode(UIImageRenderingMode mode) const {
  return send<ImageBody>(*this, "imageWithRenderingMode:", {static_cast<double>(mode)},
                         [&](const ImageBody& self) { return self.inMode(mode); });
}

void UIImage::drawInRect(const CGRect& rect) const {
  send<ImageBody>(*this, "drawInRect:", {Argument(desktop::text(rect))},
                  [&](const ImageBody& self) {
                    if (auto* context = desktop::currentContext()) {
                      context->draw([raster = self.raster(), rect](auto& cairo) {
                        desktop::drawStretched(cairo, raster->surface(), rect);
                      });
                    }
                  });
}

}  // namespace platform
