#include "platform/UIKit/UIImageView.h"

#include <algorithm>

#include "desktop/CoreGraphics/Drawing.h"
#include "desktop/CoreGraphics/Geometry.h"
#include "desktop/Message.h"
#include "desktop/UIKit/ImageBody.h"
#include "desktop/UIKit/ImageViewBody.h"

namespace desktop {

namespace {

using platform::CGRect;
using platform::CGSize;

CGRect centred(const CGSize& size, const CGSize& in) {
  return {{(in.width - size.width) / 2, (in.height - size.height) / 2}, size};
}

/// Where in a view of that size a picture lies.
CGRect placeOf(const CGSize& picture, const CGSize& view, platform::UIViewContentMode mode) {
  switch (mode) {
    case platform::UIViewContentMode::ScaleToFill:
      return {{}, view};
    case platform::UIViewContentMode::ScaleAspectFit: {
      const double fit = std::min(view.width / picture.width, view.height / picture.height);
      return centred({picture.width * fit, picture.height * fit}, view);
    }
    case platform::UIViewContentMode::Center:
      return centred(picture, view);
  }
  return {};
}

/// What views without a tint of their own or of one above them wear: the system's blue.
const ColorBody systemTint(0, 122 / 255.0, 1, 1);

}  // namespace

void ImageViewBody::drawContent(_cairo& context) const {
  const auto* picture = bodyAs<ImageBody>(image);
  if (!picture) return;
  const CGRect place = placeOf(picture->size(), frame.size, contentMode);
  if (picture->mode != platform::UIImageRenderingMode::AlwaysTemplate) {
    return drawStretched(context, picture->raster()->surface(), place);
  }
  const auto* color = bodyAs<ColorBody>(tint);
  drawShape(context, picture->raster()->surface(), place, color ? *color : systemTint);
}

}  // namespace desktop

namespace platform {

using desktop::ImageBody;
using desktop::ImageViewBody;

namespace {

UIImageView makeView(const CGRect& frame, const UIImage& image) {
  UIImageView view = desktop::make<UIImageView, ImageViewBody>();
  auto& body = *desktop::bodyAs<ImageViewBody>(view);
  body.frame = frame;
  body.image = image;
  return view;
}

}  // namespace

UIImageView UIImageView::initWithFrame(const CGRect& frame) {
  return desktop::sendClass("UIImageView",
                            "initWithFrame:", {desktop::Argument(desktop::text(frame))},
                            [&] { return makeView(frame, UIImage()); });
}

UIImageView UIImageView::initWithImage(const UIImage& image) {
  return desktop::sendClass("UIImageView", "initWithImage:", {image}, [&] {
    const auto* picture = desktop::bodyAs<ImageBody>(image);
    return makeView({{}, picture ? picture->size() : CGSize()}, image);
  });
}

void UIImageView::setImage(const UIImage& image) {
  desktop::send<ImageViewBody>(*this, "setImage:", {image},
                               [&](ImageViewBody& self) { self.image = image; });
}

}  // namespace platform
