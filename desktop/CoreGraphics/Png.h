#pragma once

#include <string>
#include <string_view>

#include "desktop/UIKit/Cairo.h"

namespace desktop {

/// The picture of a PNG file (ISO/IEC 15948) as premultiplied ARGB; null for what is damaged, cut
/// off or no such file, and for more than `maximumPixels`.
Surface readPng(std::string_view bytes);

/// The surface as the bytes of a PNG file; empty when memory does not suffice.
std::string writePng(cairo_surface_t& pixels);

}  // namespace desktop
