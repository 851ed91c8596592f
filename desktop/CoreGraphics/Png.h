#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/UIKit/Cairo.h"

namespace desktop {

/// In pixels.
struct PngSize {
  int width;
  int height;
};

/// The size of the picture of a PNG file; none for what is damaged, cut off or no such file, and
/// for more than what is bearable. Nothing is decoded.
std::optional<PngSize> sizeOfPng(std::string_view bytes);

/// The picture of a PNG file (ISO/IEC 15948) as premultiplied ARGB; null for what is damaged, cut
/// off or no such file, and for more than what is bearable.
Surface readPng(std::string_view bytes);

/// The surface as the bytes of a PNG file; empty when memory does not suffice.
std::string writePng(cairo_surface_t& pixels);

}  // namespace desktop
