#pragma once

#include <functional>

#include "desktop/UIKit/Cairo.h"

namespace desktop {

/// The pixels of a picture, made when they are looked at first: whoever works without a browser
/// never looks, and decoding and drawing take longer than all the rest of a page.
class Raster {
 public:
  /// Makes an image surface of premultiplied ARGB; null when it cannot.
  using Making = std::function<Surface()>;

  Raster(int pixelsWide, int pixelsHigh, Making making);

  /// Of pixels that are there already.
  explicit Raster(Surface pixels);

  /// The image surface; transparent when its pixels could not be made.
  cairo_surface_t& surface() const;

  /// In pixels.
  const int width;
  const int height;

 private:
  mutable Making making_;
  mutable Surface surface_;
};

}  // namespace desktop
